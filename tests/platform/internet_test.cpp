#include "platform/internet.h"

#include <gtest/gtest.h>

#include <QtCore/QElapsedTimer>
#include <QtCore/QScopedValueRollback>
#include <QtCore/QTimer>
#include <functional>
#include <random>

#include "platform/dialogs.h"
#include "platform/errors.h"
#include "platform/qt/host/host_window.h"
#include "platform/qt/network/busy_sign.h"
#include "platform/qt/network/waiting.h"
#include "platform/text.h"
#include "support/certificates.h"
#include "support/played_board.h"
#include "support/web_server.h"

namespace {

constexpr DWORD blockSize = 32000;

struct Fetched {
    DWORD openError = 0;
    DWORD readError = 0;
    std::string content;
    std::vector<std::size_t> blockSizes;
};

Fetched Read(HINTERNET link) {
    Fetched fetched;
    std::string block(blockSize, '\0');
    DWORD count = 0;
    do {
        if (!InternetReadFile(link, block.data(), blockSize, &count)) {
            fetched.readError = GetLastError();
            EXPECT_EQ(count, 0u);
        }
        fetched.content += block.substr(0, count);
        fetched.blockSizes.push_back(count);
    } while (count > 0);
    return fetched;
}

Fetched Fetch(
    const std::string& address, const std::function<void()>& beforeReading = [] {}) {
    Fetched fetched;
    HINTERNET root = InternetOpenW(u"Example", INTERNET_OPEN_TYPE_DIRECT, nullptr, nullptr, 0);
    HINTERNET link =
        InternetOpenUrlW(root, WidenPath(address).c_str(), nullptr, 0, INTERNET_FLAG_RAW_DATA, 0);
    if (link != nullptr) {
        beforeReading();
        fetched = Read(link);
        EXPECT_TRUE(InternetCloseHandle(link));
    } else {
        fetched.openError = GetLastError();
    }
    EXPECT_TRUE(InternetCloseHandle(root));
    return fetched;
}

std::string RandomBytes(std::size_t size) {
    std::mt19937 random(static_cast<unsigned>(size));
    std::string bytes(size, '\0');
    std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<char>(random()); });
    return bytes;
}

std::string Chunk(const std::string& content) {
    std::ostringstream chunk;
    chunk << std::hex << content.size() << "\r\n" << content << "\r\n";
    return chunk.str();
}

const std::string chunkedHead =
    "HTTP/1.1 200 OK\r\nConnection: close\r\nTransfer-Encoding: chunked\r\n\r\n";

class Internet : public testing::Test {
protected:
    void ExpectError(const std::string& path, const WebAnswer& answer, DWORD open, DWORD read) {
        server.Put(path, answer);
        const Fetched fetched = Fetch(server.Link(path));
        EXPECT_EQ(fetched.openError, open) << path;
        EXPECT_EQ(fetched.readError, read) << path;
    }

    WebServer server;
};

// A block that comes short is taken for the whole start of a file.
TEST_F(Internet, AnswersArriveWholeInFullBlocksHoweverTheyAreSent) {
    const std::string content = RandomBytes(2 * blockSize + 1000);
    const std::string zipped = Gzip(content);
    const std::map<std::string, WebAnswer> answers = {
        {"/whole", {{Page(content)}}},
        {"/kept-alive",
         {{Page(content, "200 OK", "Keep: it\r\n")}, 0, WebAnswer::Ending::StayOpen}},
        {"/small-pieces", {Cut(Page(content), 700), 1}},
        {"/without-length", {{PageWithoutLength(content)}}},
        {"/chunks",
         {{chunkedHead, Chunk(content.substr(0, 9)), Chunk(content.substr(9)) + Chunk("")}, 5}},
        {"/zipped", {Cut(Page(zipped, "200 OK", "Content-Encoding: gzip\r\n"), 20000), 5}},
        {"/missing", {{Page(content, "404 Not Found")}}},
        {"/refused", {{Page(content, "401 Unauthorized", "WWW-Authenticate: Basic\r\n")}}},
        {"/no-target", {{Page(content, "302 Found")}}}};
    for (const auto& [path, answer] : answers) {
        server.Put(path, answer);
        const Fetched fetched = Fetch(server.Link(path));
        EXPECT_EQ(fetched.openError + fetched.readError, 0u) << path;
        EXPECT_TRUE(fetched.content == content) << path;
        EXPECT_EQ(fetched.blockSizes, (std::vector<std::size_t>{blockSize, blockSize, 1000, 0}))
            << path;
    }
    server.Put("/empty", Page("", "200 OK", "Content-Encoding: gzip\r\n"));
    EXPECT_EQ(Fetch(server.Link("/empty")).blockSizes, std::vector<std::size_t>{0});
}

// Fault: half a puzzle is taken for a whole one.
TEST_F(Internet, BrokenAnswersAreErrors) {
    const std::string content = RandomBytes(5000);
    const std::string zipped = Page(Gzip(content), "200 OK", "Content-Encoding: gzip\r\n");
    const std::string page = Page(content);
    ExpectError("/cut", {{page.substr(0, 3000)}}, 0, ERROR_INTERNET_CONNECTION_RESET);
    ExpectError("/cut-late", {{page.substr(0, 100), page.substr(100, 3000)}, 50}, 0,
                ERROR_INTERNET_CONNECTION_RESET);
    ExpectError(
        "/cut-zip-without-length",
        {{"HTTP/1.1 200 OK\r\nContent-Encoding: gzip\r\n\r\n" + Gzip(content).substr(0, 3000)}}, 0,
        ERROR_INTERNET_CONNECTION_RESET);
    ExpectError("/cut-zip", {{zipped.substr(0, 3000)}}, 0, ERROR_INTERNET_CONNECTION_RESET);
    ExpectError("/no-zip", {{Page(content, "200 OK", "Content-Encoding: gzip\r\n")}}, 0,
                ERROR_INTERNET_DECODING_FAILED);
    ExpectError("/no-http", {{"QUADREL 1.0 HELLO\r\n\r\n"}}, ERROR_INTERNET_CONNECTION_ABORTED, 0);
    ExpectError("/hangs-up", {{}}, ERROR_INTERNET_CONNECTION_ABORTED, 0);
}

TEST_F(Internet, AddressesThatLeadNowhereSayWhy) {
    // The resolver gives up at once where there is no network.
    setenv("RES_OPTIONS", "timeout:1 attempts:1", 1);
    const std::map<std::string, DWORD> addresses = {
        {"", ERROR_INTERNET_INVALID_URL},
        {"http://", ERROR_INTERNET_INVALID_URL},
        {"http://a b c/", ERROR_INTERNET_INVALID_URL},
        {"http://127.0.0.1:99999/a.puz", ERROR_INTERNET_INVALID_URL},
        {"ftp://127.0.0.1/a.puz", ERROR_INTERNET_UNRECOGNIZED_SCHEME},
        {"file:///etc/passwd", ERROR_INTERNET_UNRECOGNIZED_SCHEME},
        {"www.example.com/a.puz", ERROR_INTERNET_UNRECOGNIZED_SCHEME},
        {"http://nowhere.invalid/a.puz", ERROR_INTERNET_NAME_NOT_RESOLVED},
        {RefusedLink(), ERROR_INTERNET_CANNOT_CONNECT}};
    for (const auto& [address, error] : addresses) {
        EXPECT_EQ(Fetch(address).openError, error) << address;
    }
    server.Put("/a%20b", Page("found"));
    EXPECT_EQ(Fetch(" " + server.Link("/a b") + " ").content, "found");
}

TEST_F(Internet, RedirectionsAreFollowedTenTimes) {
    for (int left = 1; left <= 11; ++left) {
        server.Put("/" + std::to_string(left), Redirection("/" + std::to_string(left - 1)));
    }
    server.Put("/0", Page("found"));
    EXPECT_EQ(Fetch(server.Link("/10")).content, "found");
    EXPECT_EQ(Fetch(server.Link("/11")).openError, ERROR_INTERNET_REDIRECT_FAILED);
    ExpectError("/loop", {{Redirection("/loop")}}, ERROR_INTERNET_REDIRECT_FAILED, 0);
    ExpectError("/file", {{Redirection("file:///etc/passwd")}}, ERROR_INTERNET_REDIRECT_FAILED, 0);
}

TEST_F(Internet, SafePagesNeedAGoodCertificateAndStaySafe) {
    const Certificates certificates;
    WebServer safe(certificates.Make("good"));
    safe.Put("/a.puz", Page("found"));
    EXPECT_EQ(Fetch(safe.Link("/a.puz")).content, "found");
    server.Put("/up", Redirection(safe.Link("/a.puz")));
    EXPECT_EQ(Fetch(server.Link("/up")).content, "found");
    safe.Put("/down", Redirection(server.Link("/up")));
    EXPECT_EQ(Fetch(safe.Link("/down")).openError, ERROR_INTERNET_HTTPS_TO_HTTP_ON_REDIR);

    const std::pair<std::filesystem::path, DWORD> bad[] = {
        {certificates.Make("other", "DNS:other.example.com"), ERROR_INTERNET_SEC_CERT_CN_INVALID},
        {certificates.Make("expired", "IP:127.0.0.1", -1), ERROR_INTERNET_SEC_CERT_DATE_INVALID},
        {certificates.Make("stranger", "IP:127.0.0.1", 2, "stranger"), ERROR_INTERNET_INVALID_CA}};
    for (const auto& [certificate, error] : bad) {
        WebServer other(certificate);
        EXPECT_EQ(Fetch(other.Link("/a.puz")).openError, error) << certificate;
        EXPECT_EQ(other.Requests(), std::vector<std::string>());
    }
    std::string noTls = server.Link("/up");
    noTls.replace(0, 4, "https");
    EXPECT_EQ(Fetch(noTls).openError, ERROR_INTERNET_SECURITY_CHANNEL_ERROR);
}

TEST_F(Internet, SilentServersAreGivenUpAndSlowOnesAreNot) {
    const QScopedValueRollback patience(longestSilence, 250);
    const auto stays = WebAnswer::Ending::StayOpen;
    ExpectError("/silent", {{}, 0, stays}, ERROR_INTERNET_TIMEOUT, 0);
    ExpectError("/stops", {{Page("content").substr(0, 60)}, 0, stays}, 0, ERROR_INTERNET_TIMEOUT);
    server.Put("/slow", WebAnswer{{PageWithoutLength(""), "so", " ", "very", " ", "slow"}, 80});
    EXPECT_EQ(Fetch(server.Link("/slow")).content, "so very slow");
}

TEST_F(Internet, LargeAnswersAreRefused) {
    const std::string limit(1024 * 1024, 'x');
    server.Put("/limit", PageWithoutLength(limit));
    EXPECT_TRUE(Fetch(server.Link("/limit")).content == limit);
    const auto stays = WebAnswer::Ending::StayOpen;
    ExpectError("/announced", {{"HTTP/1.1 200 OK\r\nContent-Length: 1048577\r\n\r\n"}, 0, stays}, 0,
                ERROR_FILE_TOO_LARGE);
    ExpectError("/endless", {{PageWithoutLength(limit + "x")}, 0, stays}, 0, ERROR_FILE_TOO_LARGE);
    const std::string bomb = Gzip(std::string(50'000'000, '\0'));
    ExpectError("/bomb", {{Page(bomb, "200 OK", "Content-Encoding: gzip\r\n")}}, 0,
                ERROR_FILE_TOO_LARGE);
}

// What one server says stays with it, and nobody but the server hears of the player's wish.
TEST_F(Internet, NothingIsCarriedAlong) {
    setenv("http_proxy", RefusedLink().c_str(), 1);
    server.Put("/first",
               Page("", "302 Found", "Set-Cookie: who=you; Path=/\r\nLocation: /last\r\n"));
    server.Put("/last", Page("found", "200 OK", "Cache-Control: max-age=9999\r\n"));
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(Fetch(server.Link("/first")).content, "found");
    }
    unsetenv("http_proxy");
    const auto requests = server.Requests();
    ASSERT_EQ(requests.size(), 4u);
    for (const std::string& head : requests) {
        EXPECT_NE(head.find("\r\nUser-Agent: Example\r\n"), std::string::npos) << head;
        EXPECT_EQ(head.find("Cookie"), std::string::npos) << head;
    }
}

class Waiting : public PlayedBoard {
protected:
    static bool SignIsShown() {
        const auto* sign = Host().findChild<BusySign*>();
        return sign != nullptr && sign->isVisible();
    }

    WebServer server;
};

TEST_F(Waiting, DropsInput) {
    server.Put("/slow", WebAnswer{Cut(Page("found"), 20), 20});
    handheld->TapCell(0, 0);
    QTimer::singleShot(30, &Host(), [this] {
        handheld->Press('X');
        handheld->Commit("y");
        handheld->Tap(CellSize * 2 + 9, CellSize * 2 + 9);
        handheld->TapPanel(20, 24);
    });
    EXPECT_EQ(Fetch(server.Link("/slow")).content, "found");
    handheld->Settle();
    EXPECT_EQ(PlayerLetters(), "----.----");
    EXPECT_EQ(CursorRow + CursorCol, 0);
    handheld->Press('X');
    EXPECT_EQ(PlayerLetters(), "X---.----") << "input stays dropped";
}

TEST_F(Waiting, ShowsASignWhenItLasts) {
    server.Put("/slow", WebAnswer{{PageWithoutLength(""), "a", "b"}, 350});
    bool early = true;
    QImage late;
    QTimer::singleShot(150, &Host(), [&] { early = SignIsShown(); });
    QTimer::singleShot(400, &Host(), [&] { handheld->Resize(2); });
    QTimer::singleShot(600, &Host(), [&] {
        if (SignIsShown()) {
            late = Host().findChild<BusySign*>()->grab().toImage();
        }
    });
    Fetch(server.Link("/slow"));
    EXPECT_FALSE(early);
    EXPECT_EQ(late.size(), QSize(344, 88)) << "it follows the size of the window";
    EXPECT_FALSE(SignIsShown());
}

TEST_F(Waiting, EndsAtOnceWhenTheProgramIsAskedToEnd) {
    server.Put("/silent", WebAnswer{{}, 0, WebAnswer::Ending::StayOpen});
    server.Put("/stops", WebAnswer{{PageWithoutLength("a")}, 0, WebAnswer::Ending::StayOpen});
    QElapsedTimer elapsed;
    elapsed.start();
    const auto askSoon = [] { QTimer::singleShot(20, &Host(), [] { Host().close(); }); };
    EXPECT_EQ(Fetch(server.Link("/stops"), askSoon).readError, ERROR_INTERNET_OPERATION_CANCELLED);
    EXPECT_EQ(Fetch(server.Link("/silent")).openError, ERROR_INTERNET_OPERATION_CANCELLED);
    EXPECT_LT(elapsed.elapsed(), 2000);
    handheld->Settle();
    EXPECT_FALSE(handheld->Running());
}

}  // namespace
