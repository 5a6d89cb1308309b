#include "support/web_server.h"

#include <QtCore/QProcess>
#include <QtCore/QThread>
#include <QtCore/QTimer>
#include <QtNetwork/QSslKey>
#include <QtNetwork/QSslServer>
#include <QtNetwork/QTcpSocket>
#include <map>
#include <mutex>
#include <stdexcept>

#include "support/temporary_home.h"

namespace {

QByteArray ToBytes(const std::string& text) {
    return QByteArray::fromStdString(text);
}

std::string PathOf(const std::string& head) {
    const std::size_t start = head.find(' ') + 1;
    return head.substr(start, head.find(' ', start) - start);
}

std::unique_ptr<QTcpServer> SecureServer(const ServerCertificate& certificate) {
    const auto key = ToBytes(ReadBytes(certificate.key));
    const auto own = ToBytes(ReadBytes(certificate.certificate));
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.setLocalCertificate(QSslCertificate(own));
    configuration.setPrivateKey(QSslKey(key, QSsl::Ec));
    auto server = std::make_unique<QSslServer>();
    server->setSslConfiguration(configuration);
    return server;
}

// Sends one answer, piece by piece, and deletes itself with its socket.
class Sender : public QObject {
public:
    Sender(QTcpSocket* parent, const WebAnswer& given)
        : QObject(parent), socket(parent), answer(given) {
        connect(&pause, &QTimer::timeout, this, [this] { SendNext(); });
        pause.setTimerType(Qt::PreciseTimer);
        if (answer.ending == WebAnswer::Ending::RepeatLastPiece) {
            connect(socket, &QTcpSocket::bytesWritten, this, [this] {
                if (socket->bytesToWrite() == 0) {
                    socket->write(ToBytes(answer.pieces.back()));
                }
            });
        }
        pause.start(answer.pause);
        SendNext();
    }

private:
    void SendNext() {
        if (next < answer.pieces.size()) {
            socket->write(ToBytes(answer.pieces[next++]));
            socket->flush();
            return;
        }
        pause.stop();
        if (answer.ending == WebAnswer::Ending::Close) {
            socket->disconnectFromHost();
        }
    }

    QTcpSocket* socket;
    WebAnswer answer;
    QTimer pause;
    std::size_t next = 0;
};

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

std::vector<std::string> Cut(const std::string& text, std::size_t pieceSize) {
    std::vector<std::string> pieces;
    for (std::size_t start = 0; start < text.size(); start += pieceSize) {
        pieces.push_back(text.substr(start, pieceSize));
    }
    return pieces;
}

std::string Gzip(const std::string& content) {
    QProcess gzip;
    gzip.start("gzip", {"-c"});
    gzip.write(ToBytes(content));
    gzip.closeWriteChannel();
    if (!gzip.waitForFinished() || gzip.exitCode() != 0) {
        throw std::runtime_error("gzip does not work");
    }
    return gzip.readAllStandardOutput().toStdString();
}

// What the test's thread and the server's share.
struct WebServer::Desk {
    QThread thread;
    QObject context;  // lives in the thread
    std::unique_ptr<QTcpServer> server;
    std::string root;
    std::mutex mutex;
    std::map<std::string, WebAnswer> answers;
    std::vector<std::string> requests;

    explicit Desk(const ServerCertificate* certificate) {
        context.moveToThread(&thread);
        thread.start();
        InThread([&] { Open(certificate); });
        if (root.empty()) {
            throw std::runtime_error("no port to listen on");
        }
    }
    ~Desk() {
        InThread([this] { server.reset(); });
        thread.quit();
        thread.wait();
    }

    template <typename Work>
    void InThread(Work work) {
        QMetaObject::invokeMethod(&context, work, Qt::BlockingQueuedConnection);
    }
    void Open(const ServerCertificate* certificate) {
        server =
            certificate != nullptr ? SecureServer(*certificate) : std::make_unique<QTcpServer>();
        QObject::connect(server.get(), &QTcpServer::pendingConnectionAvailable, &context, [this] {
            while (QTcpSocket* socket = server->nextPendingConnection()) {
                Receive(socket);
            }
        });
        if (server->listen(QHostAddress::LocalHost)) {
            root = (certificate != nullptr ? "https://127.0.0.1:" : "http://127.0.0.1:") +
                   std::to_string(server->serverPort());
        }
    }
    void Receive(QTcpSocket* socket) {
        QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        const auto head = std::make_shared<std::string>();
        const auto read = [this, socket, head] {
            *head += socket->readAll().toStdString();
            // Like any server, one without TLS has no patience with those who speak it.
            if (head->ends_with("\r\n\r\n") || head->starts_with('\x16')) {
                new Sender(socket, AnswerTo(std::exchange(*head, {})));
            }
        };
        QObject::connect(socket, &QTcpSocket::readyRead, socket, read);
        read();
    }
    WebAnswer AnswerTo(const std::string& head) {
        const std::lock_guard lock(mutex);
        requests.push_back(head);
        const auto found = answers.find(PathOf(head));
        return found != answers.end() ? found->second
                                      : WebAnswer{{Page("Nothing is here.", "404 Not Found")}};
    }
};

WebServer::WebServer() : desk(std::make_unique<Desk>(nullptr)) {
}

WebServer::WebServer(const ServerCertificate& certificate)
    : desk(std::make_unique<Desk>(&certificate)) {
}

WebServer::~WebServer() = default;

void WebServer::Put(const std::string& path, const WebAnswer& answer) {
    const std::lock_guard lock(desk->mutex);
    desk->answers[path] = answer;
}

std::string WebServer::Link(const std::string& path) const {
    return desk->root + path;
}

std::vector<std::string> WebServer::Requests() const {
    const std::lock_guard lock(desk->mutex);
    return desk->requests;
}

std::string RefusedLink() {
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    return "http://127.0.0.1:" + std::to_string(server.serverPort()) + "/a.puz";
}
