// Requests by libcurl, on the event loop of the program's thread.
//
// Redirections are followed here, one request for each: so what one server says stays with it.
// Packed answers are unpacked here, because nothing may be held beyond the limit.
#include <curl/curl.h>

#include <QtCore/QByteArray>
#include <QtCore/QUrl>
#include <algorithm>
#include <memory>

#include "platform/qt/network/module/curl_loop.h"
#include "platform/qt/network/module/transfer.h"
#include "platform/qt/network/module/transfer_errors.h"
#include "platform/qt/network/module/unpacker.h"

namespace {

constexpr int mostRedirections = 10;
constexpr std::size_t longestHeads = 65536;  // of all answers on the way together

DWORD ErrorOfAddress(const QUrl& address) {
    if (address.isEmpty() || !address.isValid()) {
        return ERROR_INTERNET_INVALID_URL;
    }
    if (address.scheme() != "http" && address.scheme() != "https") {
        return ERROR_INTERNET_UNRECOGNIZED_SCHEME;
    }
    return address.host().isEmpty() ? ERROR_INTERNET_INVALID_URL : 0;
}

DWORD ErrorOfRedirection(const QUrl& from, const QUrl& to) {
    if (from.scheme() == "https" && to.scheme() == "http") {
        return ERROR_INTERNET_HTTPS_TO_HTTP_ON_REDIR;
    }
    return ErrorOfAddress(to) == 0 ? 0 : ERROR_INTERNET_REDIRECT_FAILED;
}

class HttpTransfer : public Transfer {
public:
    explicit HttpTransfer(const TransferRequest& request)
        : limit(request.limit), address(QString::fromUtf16(request.address).trimmed()) {
        error = ErrorOfAddress(address);
        if (error == 0) {
            // Else it would be held twice while it grows.
            content.reserve(static_cast<qsizetype>(limit + CURL_MAX_WRITE_SIZE));
            SetOptions(QString::fromUtf16(request.agent).toUtf8());
            Start();
        }
    }
    ~HttpTransfer() override {
        loop.Remove(easy);
        curl_easy_cleanup(easy);
        curl_slist_free_all(wishes);
    }
    HttpTransfer(const HttpTransfer&) = delete;
    HttpTransfer& operator=(const HttpTransfer&) = delete;

    bool Opened() const override {
        return opened;
    }
    bool Ended() const override {
        return ended || error != 0;
    }
    DWORD Error() const override {
        return error;
    }
    int SignsOfLife() const override {
        return signsOfLife;
    }
    std::size_t Received() const override {
        return static_cast<std::size_t>(content.size());
    }
    std::size_t Waiting() const override {
        return Received() - taken;
    }
    std::size_t Take(char* buffer, std::size_t size) override {
        const std::size_t count = std::min(size, Waiting());
        std::copy_n(content.constData() + taken, count, buffer);
        taken += count;
        return count;
    }

private:
    void SetOptions(const QByteArray& agent) {
        wishes = curl_slist_append(nullptr, "Accept-Encoding: gzip");
        curl_easy_setopt(easy, CURLOPT_HTTPHEADER, wishes);
        curl_easy_setopt(easy, CURLOPT_USERAGENT, agent.constData());
        curl_easy_setopt(easy, CURLOPT_PROTOCOLS_STR, "http,https");
        curl_easy_setopt(easy, CURLOPT_HTTP_VERSION, CURL_HTTP_VERSION_1_1);
        curl_easy_setopt(easy, CURLOPT_PROXY, "");
        curl_easy_setopt(easy, CURLOPT_NOSIGNAL, 1L);
        // Nobody waits for a name that is still looked up when all is over.
        curl_easy_setopt(easy, CURLOPT_QUICK_EXIT, 1L);
        // The common way to name other certificates to trust than the system's.
        if (const QByteArray trusted = qgetenv("SSL_CERT_FILE"); !trusted.isEmpty()) {
            curl_easy_setopt(easy, CURLOPT_CAINFO, trusted.constData());
        }
        curl_easy_setopt(easy, CURLOPT_HEADERFUNCTION, OnHead);
        curl_easy_setopt(easy, CURLOPT_HEADERDATA, this);
        curl_easy_setopt(easy, CURLOPT_WRITEFUNCTION, OnContent);
        curl_easy_setopt(easy, CURLOPT_WRITEDATA, this);
    }

    void Start() {
        curl_easy_setopt(easy, CURLOPT_URL, address.toEncoded().constData());
        loop.Add(easy, [this](CURLcode code) { Finish(code); });
    }

    // Both: anything but the size ends the transfer.
    static std::size_t OnHead(const char* bytes, std::size_t, std::size_t size, void* transfer) {
        return static_cast<HttpTransfer*>(transfer)->TakeHead({bytes, size}) ? size : 0;
    }
    static std::size_t OnContent(const char* bytes, std::size_t, std::size_t size, void* transfer) {
        return static_cast<HttpTransfer*>(transfer)->TakeContent(bytes, size) ? size : 0;
    }

    bool Fail(DWORD reason) {
        error = reason;
        return false;
    }

    // Line by line, the last one empty.
    bool TakeHead(std::string_view line) {
        ++signsOfLife;
        heads += line.size();
        if (heads > longestHeads) {
            return Fail(ERROR_HTTP_INVALID_SERVER_RESPONSE);
        }
        return line != "\r\n" && line != "\n" ? true : EndHead();
    }

    bool EndHead() {
        long status = 0;
        curl_easy_getinfo(easy, CURLINFO_RESPONSE_CODE, &status);
        redirected = status >= 300 && status < 400 && !Header("Location").isEmpty();
        opened = status >= 200 && !redirected;
        const QByteArray encoding = Header("Content-Encoding").toLower();
        if (opened && !encoding.isEmpty() && encoding != "identity") {
            unpacker = std::make_unique<Unpacker>();
        }
        curl_off_t announced = 0;
        curl_easy_getinfo(easy, CURLINFO_CONTENT_LENGTH_DOWNLOAD_T, &announced);
        return !opened || announced <= static_cast<curl_off_t>(limit) || Fail(ERROR_FILE_TOO_LARGE);
    }

    QByteArray Header(const char* name) const {
        curl_header* header = nullptr;
        return curl_easy_header(easy, name, 0, CURLH_HEADER, -1, &header) == CURLHE_OK
                   ? QByteArray(header->value)
                   : QByteArray();
    }

    // What a redirection says besides is of no use.
    bool TakeContent(const char* bytes, std::size_t size) {
        ++signsOfLife;
        if (redirected) {
            return false;
        }
        arrived += size;
        const QByteArray packed(bytes, static_cast<qsizetype>(size));
        if (!unpacker) {
            content += packed;
        } else if (!unpacker->Unpack(packed, content, limit)) {
            return Fail(ERROR_INTERNET_DECODING_FAILED);
        }
        return std::max(arrived, Received()) <= limit || Fail(ERROR_FILE_TOO_LARGE);
    }

    void Finish(CURLcode code) {
        loop.Remove(easy);
        if (error != 0) {
            return;
        }
        if (redirected) {
            Follow();
        } else if (code != CURLE_OK) {
            error = ErrorOfTransfer(easy, code, opened);
        } else if (unpacker && arrived > 0 && !unpacker->IsComplete()) {
            error = ERROR_INTERNET_CONNECTION_RESET;
        } else {
            ended = true;
        }
    }

    void Follow() {
        const QUrl target = address.resolved(QUrl::fromEncoded(Header("Location").trimmed()));
        error = ++redirections > mostRedirections ? ERROR_INTERNET_REDIRECT_FAILED
                                                  : ErrorOfRedirection(address, target);
        if (error == 0) {
            address = target;
            redirected = false;
            Start();
        }
    }

    const std::size_t limit;
    QUrl address;
    CURL* easy = curl_easy_init();
    curl_slist* wishes = nullptr;
    CurlLoop loop;
    std::unique_ptr<Unpacker> unpacker;  // for a packed answer
    std::size_t heads = 0;
    std::size_t arrived = 0;  // bytes, still packed
    QByteArray content;
    std::size_t taken = 0;
    DWORD error = 0;
    int signsOfLife = 0;
    int redirections = 0;
    bool redirected = false;
    bool opened = false;
    bool ended = false;
};

}  // namespace

extern "C" Q_DECL_EXPORT Transfer* StartTransfer(const TransferRequest& request) {
    static const CURLcode ready = curl_global_init(CURL_GLOBAL_DEFAULT);
    Q_UNUSED(ready);
    return new HttpTransfer(request);
}
