// A real web server on the loopback address. It works while the program waits for it.
#pragma once

#include <QtCore/QTimer>
#include <QtNetwork/QSslKey>
#include <QtNetwork/QSslServer>
#include <QtNetwork/QTcpSocket>

#include "support/temporary_home.h"

struct WebAnswer {
    std::vector<std::string> pieces;  // sent one after the other
    int pause = 0;                    // milliseconds before each piece but the first
    bool staysOpen = false;
};

// Without a length: it ends with the connection.
inline std::string PageWithoutLength(const std::string& content, const std::string& moreHead = "",
                                     const std::string& status = "200 OK") {
    return "HTTP/1.1 " + status + "\r\nConnection: close\r\n" + moreHead + "\r\n" + content;
}
inline std::string Page(const std::string& content, const std::string& moreHead = "",
                        const std::string& status = "200 OK") {
    const std::string length = "Content-Length: " + std::to_string(content.size()) + "\r\n";
    return PageWithoutLength(content, moreHead + length, status);
}

// Nobody listens on its port any more when it is gone.
class WebServer {
public:
    // With the name of a certificate in support/certificates, pages are safe. The program is made
    // to trust the authority there instead of the system's many, which it reads for each request.
    explicit WebServer(const std::string& certificate = "")
        : server(certificate.empty() ? std::make_unique<QTcpServer>() : SecureServer(certificate)) {
        QObject::connect(server.get(), &QTcpServer::pendingConnectionAvailable, [this] {
            while (QTcpSocket* socket = server->nextPendingConnection()) {
                Receive(socket);
            }
        });
        setenv("SSL_CERT_FILE", CERTIFICATES "authority.pem", 1);
        server->listen(QHostAddress::LocalHost);
        root = certificate.empty() ? "http" : "https";
        root += "://127.0.0.1:" + std::to_string(server->serverPort());
    }

    // Every other path is answered with 404.
    void Put(const std::string& path, const WebAnswer& answer) {
        answers[path] = answer;
    }
    std::string Link(const std::string& path) const {
        return root + path;
    }
    // The heads of the requests so far.
    const std::vector<std::string>& Requests() const {
        return requests;
    }

private:
    static std::unique_ptr<QTcpServer> SecureServer(const std::string& certificate) {
        const std::string bytes = ReadBytes(CERTIFICATES + certificate + ".pem");
        const auto pem = QByteArray::fromStdString(bytes);
        QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
        configuration.setLocalCertificate(QSslCertificate(pem));
        configuration.setPrivateKey(QSslKey(pem, QSsl::Ec));
        auto server = std::make_unique<QSslServer>();
        server->setSslConfiguration(configuration);
        return server;
    }
    static void SendFrom(std::size_t piece, QTcpSocket* socket, const WebAnswer& answer) {
        if (piece < answer.pieces.size()) {
            socket->write(QByteArray::fromStdString(answer.pieces[piece]));
            socket->flush();
            QTimer::singleShot(answer.pause, Qt::PreciseTimer, socket,
                               [=] { SendFrom(piece + 1, socket, answer); });
        } else if (!answer.staysOpen) {
            socket->disconnectFromHost();
        }
    }
    void Receive(QTcpSocket* socket) {
        QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        QObject::connect(socket, &QTcpSocket::readyRead, socket,
                         [this, socket, head = std::string()]() mutable {
                             head += socket->readAll().toStdString();
                             // Like any server, one without TLS has no patience with those who
                             // speak it.
                             if (head.ends_with("\r\n\r\n") || head.starts_with('\x16')) {
                                 SendFrom(0, socket, AnswerTo(std::exchange(head, {})));
                             }
                         });
        emit socket->readyRead();
    }
    WebAnswer AnswerTo(const std::string& head) {
        requests.push_back(head);
        const std::string path = head.substr(4, head.find(' ', 4) - 4);  // after "GET "
        const WebAnswer missing{{Page("Nothing is here.", "", "404 Not Found")}};
        return answers.contains(path) ? answers[path] : missing;
    }

    std::map<std::string, WebAnswer> answers;
    std::vector<std::string> requests;
    std::string root;
    std::unique_ptr<QTcpServer> server;
};
