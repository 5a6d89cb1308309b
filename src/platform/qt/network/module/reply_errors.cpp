#include "platform/qt/network/module/reply_errors.h"

#include <QtNetwork/QNetworkReply>
#include <QtNetwork/QSslError>
#include <algorithm>

namespace {

DWORD NumberOf(const QSslError& error) {
    switch (error.error()) {
        case QSslError::CertificateRevoked: return ERROR_INTERNET_SEC_CERT_REVOKED;
        case QSslError::HostNameMismatch: return ERROR_INTERNET_SEC_CERT_CN_INVALID;
        case QSslError::CertificateNotYetValid:
        case QSslError::CertificateExpired: return ERROR_INTERNET_SEC_CERT_DATE_INVALID;
        default: return ERROR_INTERNET_INVALID_CA;
    }
}

bool IsServerPage(const QNetworkReply& reply) {
    const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    const int error = reply.error();
    const bool aboutContent =
        error >= QNetworkReply::ContentAccessDenied && error <= QNetworkReply::UnknownContentError;
    return status >= 400 && (aboutContent || error >= QNetworkReply::InternalServerError);
}

}  // namespace

DWORD ErrorOfReply(const QNetworkReply& reply, bool opened) {
    if (reply.error() == QNetworkReply::NoError || IsServerPage(reply)) {
        return 0;
    }
    switch (reply.error()) {
        case QNetworkReply::HostNotFoundError: return ERROR_INTERNET_NAME_NOT_RESOLVED;
        case QNetworkReply::TimeoutError: return ERROR_INTERNET_TIMEOUT;
        case QNetworkReply::SslHandshakeFailedError: return ERROR_INTERNET_SECURITY_CHANNEL_ERROR;
        case QNetworkReply::RemoteHostClosedError:
            return opened ? ERROR_INTERNET_CONNECTION_RESET : ERROR_INTERNET_CONNECTION_ABORTED;
        case QNetworkReply::ProtocolFailure: return ERROR_HTTP_INVALID_SERVER_RESPONSE;
        default: return opened ? ERROR_INTERNET_CONNECTION_RESET : ERROR_INTERNET_CANNOT_CONNECT;
    }
}

// The numbers stand in the order of gravity.
DWORD ErrorOfCertificate(const QList<QSslError>& errors) {
    DWORD gravest = 0;
    for (const QSslError& error : errors) {
        gravest = std::max(gravest, NumberOf(error));
    }
    return gravest;
}
