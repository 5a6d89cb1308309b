#include "support/web_server.h"

#include <QtCore/QProcess>
#include <QtCore/QTimer>
#include <QtNetwork/QSslKey>
#include <QtNetwork/QSslServer>
#include <QtNetwork/QTcpSocket>

#include "support/temporary_home.h"

namespace {

std::unique_ptr<QTcpServer> SecureServer(const std::string& certificate) {
    const auto bytes = QByteArray::fromStdString(ReadBytes(CERTIFICATES + certificate + ".pem"));
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.setLocalCertificate(QSslCertificate(bytes));
    configuration.setPrivateKey(QSslKey(bytes, QSsl::Ec));
    auto server = std::make_unique<QSslServer>();
    server->setSslConfiguration(configuration);
    return server;
}

void SendFrom(std::size_t piece, QTcpSocket* socket, const WebAnswer& answer) {
    if (piece < answer.pieces.size()) {
        socket->write(QByteArray::fromStdString(answer.pieces[piece]));
        socket->flush();
        QTimer::singleShot(answer.pause, Qt::PreciseTimer, socket,
                           [=] { SendFrom(piece + 1, socket, answer); });
    } else if (!answer.staysOpen) {
        socket->disconnectFromHost();
    }
}

}  // namespace

std::string Page(const std::string& content, const std::string& status,
                 const std::string& moreHead) {
    return "HTTP/1.1 " + status + "\r\nConnection: close\r\n" + moreHead +
           "Content-Length: " + std::to_string(content.size()) + "\r\n\r\n" + content;
}

std::string PageWithoutLength(const std::string& content) {
    return "HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n" + content;
}

std::string Redirection(const std::string& target) {
    return Page("It has moved.", "302 Found", "Location: " + target + "\r\n");
}

std::string Gzip(const std::string& content) {
    QProcess gzip;
    gzip.start("gzip", {"-c"});
    gzip.write(QByteArray::fromStdString(content));
    gzip.closeWriteChannel();
    if (!gzip.waitForFinished() || gzip.exitCode() != 0) {
        throw std::runtime_error("gzip does not work");
    }
    return gzip.readAllStandardOutput().toStdString();
}

WebServer::WebServer(const std::string& certificate)
    : root(certificate.empty() ? "http" : "https"),
      server(certificate.empty() ? std::make_unique<QTcpServer>() : SecureServer(certificate)) {
    QObject::connect(server.get(), &QTcpServer::pendingConnectionAvailable, [this] {
        while (QTcpSocket* socket = server->nextPendingConnection()) {
            Receive(socket);
        }
    });
    setenv("SSL_CERT_FILE", CERTIFICATES "authority.pem", 1);
    server->listen(QHostAddress::LocalHost);
    root += "://127.0.0.1:" + std::to_string(server->serverPort());
}

void WebServer::Receive(QTcpSocket* socket) {
    QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    const auto read = [this, socket, head = std::string()]() mutable {
        head += socket->readAll().toStdString();
        // Like any server, one without TLS has no patience with those who speak it.
        if (head.ends_with("\r\n\r\n") || head.starts_with('\x16')) {
            SendFrom(0, socket, AnswerTo(std::exchange(head, {})));
        }
    };
    QObject::connect(socket, &QTcpSocket::readyRead, socket, read);
    emit socket->readyRead();
}

WebAnswer WebServer::AnswerTo(const std::string& head) {
    requests.push_back(head);
    const std::string path = head.substr(4, head.find(' ', 4) - 4);  // after "GET "
    return answers.try_emplace(path, WebAnswer{{Page("Nothing is here.", "404 Not Found")}})
        .first->second;
}
