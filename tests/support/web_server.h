// A real web server on the loopback address, in a thread of its own.
#pragma once

#include <QtCore/QThread>
#include <QtNetwork/QTcpServer>
#include <filesystem>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

struct WebAnswer {
    enum class Ending { Close, StayOpen };

    std::vector<std::string> pieces;  // sent one after the other
    int pause = 0;                    // milliseconds before each piece but the first
    Ending ending = Ending::Close;
};

// An answer's head and content in one string.
std::string Page(const std::string& content, const std::string& status = "200 OK",
                 const std::string& moreHead = "");
// Without a length: it ends with the connection.
std::string PageWithoutLength(const std::string& content);
std::string Redirection(const std::string& target);

std::vector<std::string> Cut(const std::string& text, std::size_t pieceSize);
std::string Gzip(const std::string& content);

class WebServer {
public:
    // With the file of a certificate and its key, pages are safe.
    explicit WebServer(const std::filesystem::path& certificate = {});
    ~WebServer();
    WebServer(const WebServer&) = delete;
    WebServer& operator=(const WebServer&) = delete;

    // Every other path is answered with 404.
    void Put(const std::string& path, const WebAnswer& answer);
    void Put(const std::string& path, const std::string& answer) {
        Put(path, WebAnswer{{answer}});
    }
    std::string Link(const std::string& path) const {
        return root + path;
    }
    // The heads of the requests so far.
    std::vector<std::string> Requests();

private:
    template <typename Work>
    void InThread(Work work) {
        QMetaObject::invokeMethod(&context, work, Qt::BlockingQueuedConnection);
    }
    void Open(const std::filesystem::path& certificate);
    void Receive(QTcpSocket* socket);
    WebAnswer AnswerTo(const std::string& head);

    QThread thread;
    QObject context;  // lives in the thread
    std::unique_ptr<QTcpServer> server;
    std::string root;
    // What the test's thread and the server's share.
    std::mutex mutex;
    std::map<std::string, WebAnswer> answers;
    std::vector<std::string> requests;
};

// The address of a port that nobody listens on.
std::string RefusedLink();
