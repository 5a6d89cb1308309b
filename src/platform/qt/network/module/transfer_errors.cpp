#include "platform/qt/network/module/transfer_errors.h"

namespace {

// By the numbers of the verification, which has none of its own for a certificate of another host.
DWORD ErrorOfCertificate(CURL* easy) {
    long result = 0;
    curl_easy_getinfo(easy, CURLINFO_SSL_VERIFYRESULT, &result);
    constexpr long fine = 0;
    constexpr long unspecified = 1;
    constexpr long notYetValid = 9;
    constexpr long expired = 10;
    constexpr long revoked = 23;
    switch (result) {
        case fine:
        case unspecified: return ERROR_INTERNET_SEC_CERT_CN_INVALID;
        case notYetValid:
        case expired: return ERROR_INTERNET_SEC_CERT_DATE_INVALID;
        case revoked: return ERROR_INTERNET_SEC_CERT_REVOKED;
        default: return ERROR_INTERNET_INVALID_CA;
    }
}

}  // namespace

DWORD ErrorOfTransfer(CURL* easy, CURLcode code, bool opened) {
    switch (code) {
        case CURLE_COULDNT_RESOLVE_HOST: return ERROR_INTERNET_NAME_NOT_RESOLVED;
        case CURLE_COULDNT_CONNECT: return ERROR_INTERNET_CANNOT_CONNECT;
        case CURLE_OPERATION_TIMEDOUT: return ERROR_INTERNET_TIMEOUT;
        case CURLE_SSL_CONNECT_ERROR: return ERROR_INTERNET_SECURITY_CHANNEL_ERROR;
        case CURLE_PEER_FAILED_VERIFICATION: return ErrorOfCertificate(easy);
        default:
            return opened ? ERROR_INTERNET_CONNECTION_RESET : ERROR_INTERNET_CONNECTION_ABORTED;
    }
}
