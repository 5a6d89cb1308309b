// Requests on the toolkit's network stack.
//
// Redirections are followed here: the stack would do it, but then the heads of all answers on the
// way get mixed, and a length or encoding may be another answer's.
//
// The stack itself does not always notice that a connection breaks too early, so the announced
// length, or the end of a compressed answer, is looked for here. For an uncompressed answer in
// chunks there is only what the stack notices.
#include <QtCore/QUrl>
#include <QtNetwork/QNetworkAccessManager>
#include <QtNetwork/QNetworkProxy>
#include <QtNetwork/QNetworkReply>
#include <QtNetwork/QSslConfiguration>
#include <algorithm>
#include <memory>

#include "platform/qt/network/module/reply_errors.h"
#include "platform/qt/network/module/transfer.h"
#include "platform/qt/network/module/unpacker.h"

namespace {

constexpr int mostRedirections = 10;
constexpr qint64 mostHeldByTheStack = 65536;

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

// The common way to name other certificates to trust than the system's.
void TrustAsAsked(QNetworkRequest& request) {
    const QString file = qEnvironmentVariable("SSL_CERT_FILE");
    if (!file.isEmpty()) {
        QSslConfiguration configuration = request.sslConfiguration();
        configuration.setCaCertificates(QSslCertificate::fromPath(file));
        request.setSslConfiguration(configuration);
    }
}

QNetworkRequest MakeRequest(const QUrl& address, const QString& agent) {
    QNetworkRequest request(address);
    request.setHeader(QNetworkRequest::UserAgentHeader, agent);
    request.setRawHeader("Accept-Encoding", "gzip");
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::ManualRedirectPolicy);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    // One answer on one connection gains nothing from it.
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    TrustAsAsked(request);
    return request;
}

class HttpTransfer : public Transfer {
public:
    explicit HttpTransfer(const TransferRequest& request)
        : limit(request.limit), agent(QString::fromUtf16(request.agent)) {
        manager.setProxy(QNetworkProxy::NoProxy);
        const QUrl address(QString::fromUtf16(request.address).trimmed());
        error = ErrorOfAddress(address);
        if (error == 0) {
            Start(address);
        }
    }

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
    void Start(const QUrl& address) {
        reply.reset(manager.get(MakeRequest(address, agent)));
        reply->setReadBufferSize(mostHeldByTheStack);
        QObject::connect(reply.get(), &QNetworkReply::metaDataChanged, [this] { TakeHead(); });
        QObject::connect(reply.get(), &QNetworkReply::readyRead, [this] { TakeContent(); });
        QObject::connect(reply.get(), &QNetworkReply::finished, [this] { Finish(); });
        QObject::connect(
            reply.get(), &QNetworkReply::sslErrors,
            [this](const QList<QSslError>& errors) { Fail(ErrorOfCertificate(errors)); });
    }

    // Ends the connection: nobody knows how long the program will keep its handle open.
    void Fail(DWORD reason) {
        error = reason;
        reply->disconnect();
        reply->abort();
    }

    void TakeHead() {
        ++signsOfLife;
        if (opened) {
            return;
        }
        const QUrl target = reply->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
        if (!target.isEmpty()) {
            Follow(reply->url().resolved(target));
            return;
        }
        opened = true;
        const QByteArray encoding = reply->rawHeader("Content-Encoding").toLower();
        if (!encoding.isEmpty() && encoding != "identity") {
            unpacker = std::make_unique<Unpacker>();
        }
        if (AnnouncedSize() > limit) {
            Fail(ERROR_FILE_TOO_LARGE);
        }
    }

    void Follow(const QUrl& target) {
        const DWORD reason = ++redirections > mostRedirections
                                 ? ERROR_INTERNET_REDIRECT_FAILED
                                 : ErrorOfRedirection(reply->url(), target);
        if (reason != 0) {
            Fail(reason);
            return;
        }
        reply->disconnect();
        reply.release()->deleteLater();  // it is what called
        Start(target);
    }

    // 0 when nothing is announced.
    std::size_t AnnouncedSize() const {
        return reply->header(QNetworkRequest::ContentLengthHeader).toULongLong();
    }

    bool IsCut() const {
        return arrived < AnnouncedSize() || (unpacker && arrived > 0 && !unpacker->IsComplete());
    }

    void TakeContent() {
        ++signsOfLife;
        const QByteArray bytes = reply->readAll();
        arrived += static_cast<std::size_t>(bytes.size());
        if (!unpacker) {
            content += bytes;
        } else if (!unpacker->Unpack(bytes, content, limit)) {
            Fail(ERROR_INTERNET_DECODING_FAILED);
            return;
        }
        if (Received() > limit) {
            Fail(ERROR_FILE_TOO_LARGE);
        }
    }

    void Finish() {
        TakeContent();
        if (error != 0) {
            return;
        }
        const DWORD reason = ErrorOfReply(*reply, opened);
        if (reason != 0) {
            Fail(reason);
        } else if (opened && IsCut()) {
            Fail(ERROR_INTERNET_CONNECTION_RESET);
        }
        ended = true;
    }

    std::size_t limit;
    QString agent;
    QNetworkAccessManager manager;
    std::unique_ptr<QNetworkReply> reply;
    std::unique_ptr<Unpacker> unpacker;  // for a compressed answer
    std::size_t arrived = 0;             // bytes, still compressed
    QByteArray content;
    std::size_t taken = 0;
    DWORD error = 0;
    int signsOfLife = 0;
    int redirections = 0;
    bool opened = false;
    bool ended = false;
};

}  // namespace

extern "C" Q_DECL_EXPORT Transfer* StartTransfer(const TransferRequest& request) {
    return new HttpTransfer(request);
}
