// A real web server on the loopback address, in a thread of its own.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "support/certificates.h"

struct WebAnswer {
    enum class Ending { Close, StayOpen, RepeatLastPiece };

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
    WebServer();
    explicit WebServer(const ServerCertificate& certificate);
    ~WebServer();
    WebServer(const WebServer&) = delete;
    WebServer& operator=(const WebServer&) = delete;

    // Every other path is answered with 404.
    void Put(const std::string& path, const WebAnswer& answer);
    void Put(const std::string& path, const std::string& answer) {
        Put(path, WebAnswer{{answer}});
    }
    std::string Link(const std::string& path) const;
    // The heads of the requests so far.
    std::vector<std::string> Requests() const;

private:
    struct Desk;
    std::unique_ptr<Desk> desk;
};

// The address of a port that nobody listens on.
std::string RefusedLink();
