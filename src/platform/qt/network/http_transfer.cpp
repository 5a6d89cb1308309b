// Requests on the toolkit's network stack.
//
// It notices a connection that breaks too early, but for one case: an answer in chunks that says
// "Connection: close" and breaks right between two of them looks like a whole one.
#include <QtCore/QUrl>
#include <QtNetwork/QNetworkAccessManager>
#include <QtNetwork/QNetworkProxy>
#include <QtNetwork/QNetworkReply>
#include <QtNetwork/QSslConfiguration>
#include <algorithm>
#include <memory>

#include "platform/qt/network/reply_errors.h"
#include "platform/qt/network/transfer.h"
#include "platform/qt/network/unpacker.h"

namespace {

constexpr int mostRedirects = 10;

DWORD ErrorOfAddress(const QUrl& address) {
    if (address.isEmpty() || !address.isValid()) {
        return ERROR_INTERNET_INVALID_URL;
    }
    if (address.scheme() != "http" && address.scheme() != "https") {
        return ERROR_INTERNET_UNRECOGNIZED_SCHEME;
    }
    return address.host().isEmpty() ? ERROR_INTERNET_INVALID_URL : 0;
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
    request.setMaximumRedirectsAllowed(mostRedirects);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::NoLessSafeRedirectPolicy);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    // One answer on one connection gains nothing from it.
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    TrustAsAsked(request);
    return request;
}

class HttpTransfer : public Transfer {
public:
    explicit HttpTransfer(const TransferRequest& request) : limit(request.limit) {
        const QUrl address(QString::fromUtf16(request.address).trimmed());
        error = ErrorOfAddress(address);
        if (error == 0) {
            Start(MakeRequest(address, QString::fromUtf16(request.agent)));
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
    void Start(const QNetworkRequest& request) {
        manager.setProxy(QNetworkProxy::NoProxy);
        reply.reset(manager.get(request));
        QObject::connect(reply.get(), &QNetworkReply::metaDataChanged, [this] { TakeHead(); });
        QObject::connect(reply.get(), &QNetworkReply::redirected, [this] { ++signsOfLife; });
        QObject::connect(reply.get(), &QNetworkReply::readyRead, [this] { TakeContent(); });
        QObject::connect(reply.get(), &QNetworkReply::finished, [this] { Finish(); });
        QObject::connect(
            reply.get(), &QNetworkReply::sslErrors,
            [this](const QList<QSslError>& errors) { Fail(ErrorOfCertificate(errors)); });
    }

    // The first reason counts.
    void Fail(DWORD reason) {
        if (error == 0) {
            error = reason;
        }
    }

    bool IsRedirection() const {
        const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        return status / 100 == 3 && reply->hasRawHeader("Location");
    }

    void TakeHead() {
        ++signsOfLife;
        opened = !IsRedirection();
        const QByteArray encoding = reply->rawHeader("Content-Encoding").toLower();
        if (opened && !encoding.isEmpty() && encoding != "identity") {
            unpacker = std::make_unique<Unpacker>();
        }
        const auto length = reply->header(QNetworkRequest::ContentLengthHeader).toULongLong();
        if (opened && length > limit) {
            RefuseSize();
        }
    }

    void TakeContent() {
        ++signsOfLife;
        if (Ended()) {
            return;
        }
        const QByteArray bytes = reply->readAll();
        if (!unpacker) {
            content += bytes;
        } else if (!unpacker->Unpack(bytes, content, limit)) {
            Fail(ERROR_INTERNET_DECODING_FAILED);
        }
        if (Received() > limit) {
            RefuseSize();
        }
    }

    // Ends the connection: nobody knows how long the program will keep its handle open.
    void RefuseSize() {
        Fail(ERROR_FILE_TOO_LARGE);
        reply->abort();
    }

    void Finish() {
        TakeContent();
        if (reply->error() != QNetworkReply::NoError) {
            Fail(ErrorOfReply(*reply, opened));
        }
        if (unpacker && !unpacker->IsComplete()) {
            Fail(ERROR_INTERNET_CONNECTION_RESET);
        }
        ended = true;
    }

    std::size_t limit;
    QNetworkAccessManager manager;
    std::unique_ptr<QNetworkReply> reply;
    std::unique_ptr<Unpacker> unpacker;  // for a compressed answer
    QByteArray content;
    std::size_t taken = 0;
    DWORD error = 0;
    int signsOfLife = 0;
    bool opened = false;
    bool ended = false;
};

}  // namespace

extern "C" Q_DECL_EXPORT Transfer* StartTransfer(const TransferRequest& request) {
    return new HttpTransfer(request);
}
