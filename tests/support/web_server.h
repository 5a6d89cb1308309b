// A real web server on the loopback address. It works while the program waits for it.
#pragma once

#include <QtNetwork/QTcpServer>
#include <map>
#include <memory>
#include <string>
#include <vector>

struct WebAnswer {
    std::vector<std::string> pieces;  // sent one after the other
    int pause = 0;                    // milliseconds before each piece but the first
    bool staysOpen = false;
};

// An answer's head and content in one string.
std::string Page(const std::string& content, const std::string& status = "200 OK",
                 const std::string& moreHead = "");
// Without a length: it ends with the connection.
std::string PageWithoutLength(const std::string& content);
std::string Redirection(const std::string& target);

std::string Gzip(const std::string& content);

// Nobody listens on its port any more when it is gone.
class WebServer {
public:
    // With the name of a certificate in support/certificates, pages are safe. The program is made
    // to trust the authority there instead of the system's many, which it reads for each request.
    explicit WebServer(const std::string& certificate = "");

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
    void Receive(QTcpSocket* socket);
    WebAnswer AnswerTo(const std::string& head);

    std::map<std::string, WebAnswer> answers;
    std::vector<std::string> requests;
    std::string root;
    std::unique_ptr<QTcpServer> server;
};
