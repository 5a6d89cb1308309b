#include "platform/internet.h"

#include <gtest/gtest.h>

#include <QtCore/QScopedValueRollback>
#include <QtCore/QTimer>
#include <random>

#include "platform/errors.h"
#include "platform/qt/host/host_window.h"
#include "platform/qt/network/busy_sign.h"
#include "platform/qt/network/waiting.h"
#include "platform/text.h"
#include "support/played_board.h"
#include "support/web_server.h"

namespace {

constexpr DWORD blockSize = 32000;
constexpr auto stayOpen = WebAnswer::Ending::StayOpen;

struct Fetched {
    DWORD openError = 0;
    DWORD readError = 0;
    std::string content;
    std::vector<std::size_t> blockSizes;
};

void Read(HINTERNET link, Fetched& fetched) {
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
}

// Something happens again and again while the program waits.
Fetched Fetch(
    const std::string& address, const std::function<void()>& meanwhile = [] {}) {
    QTimer turns;
    QObject::connect(&turns, &QTimer::timeout, meanwhile);
    turns.start(1);
    Fetched fetched;
    HINTERNET root = InternetOpenW(u"Example", INTERNET_OPEN_TYPE_DIRECT, nullptr, nullptr, 0);
    HINTERNET link =
        InternetOpenUrlW(root, WidenPath(address).c_str(), nullptr, 0, INTERNET_FLAG_RAW_DATA, 0);
    if (link != nullptr) {
        Read(link, fetched);
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

std::string ZippedPage(const std::string& content) {
    return Page(Gzip(content), "200 OK", "Content-Encoding: gzip\r\n");
}

class Internet : public PlayedBoard {
protected:
    void ExpectError(const std::string& path, const WebAnswer& answer, DWORD open, DWORD read) {
        server.Put(path, answer);
        const Fetched fetched = Fetch(server.Link(path));
        EXPECT_EQ(fetched.openError, open) << path;
        EXPECT_EQ(fetched.readError, read) << path;
    }
    bool Asked() const {
        return !server.Requests().empty();
    }

    WebServer server;
    QScopedValueRollback<int> silence{longestSilence};
    QScopedValueRollback<int> patience{patienceWithoutSign};
};

// A block that comes short is taken for the whole start of a file.
TEST_F(Internet, AnswersArriveWholeInFullBlocksHoweverTheyAreSent) {
    const std::string content = RandomBytes(2 * blockSize + 1000);
    const std::string zipped = ZippedPage(content);
    const std::map<std::string, WebAnswer> answers = {
        {"/kept-alive", {{Page(content, "200 OK", "Keep: it\r\n")}, 0, stayOpen}},
        {"/without-length", {{PageWithoutLength(content.substr(0, 9)), content.substr(9)}, 5}},
        {"/chunks",
         {{"HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n9\r\n" + content.substr(0, 9),
           "\r\nfddf\r\n" + content.substr(9), "\r\n0\r\n\r\n"},
          5}},
        {"/zipped", {{zipped.substr(0, 20000), zipped.substr(20000)}, 5}},
        {"/missing", {{Page(content, "404 Not Found")}}},
        {"/no-target", {{Page(content, "302 Found")}}}};
    for (const auto& [path, answer] : answers) {
        server.Put(path, answer);
        const Fetched fetched = Fetch(server.Link(path));
        EXPECT_TRUE(fetched.content == content) << path;
        EXPECT_EQ(fetched.blockSizes, (std::vector<std::size_t>{blockSize, blockSize, 1000, 0}))
            << path;
    }
    server.Put("/empty", Page("", "200 OK", "Content-Encoding: gzip\r\n"));
    EXPECT_EQ(Fetch(server.Link("/empty")).blockSizes, std::vector<std::size_t>{0});
}

// Fault: half a puzzle is taken for a whole one.
TEST_F(Internet, BrokenAndLargeAnswersAreErrors) {
    const std::string content = RandomBytes(5000);
    const std::string page = Page(content);
    const std::string noLength = "HTTP/1.1 200 OK\r\nContent-Encoding: gzip\r\n\r\n";
    const std::string limit(1024 * 1024, 'x');
    const DWORD cut = ERROR_INTERNET_CONNECTION_RESET;
    ExpectError("/cut", {{page.substr(0, 3000)}}, 0, cut);
    ExpectError("/cut-late", {{page.substr(0, 100), page.substr(100, 3000)}, 50}, 0, cut);
    ExpectError("/cut-zip", {{noLength + Gzip(content).substr(0, 3000)}}, 0, cut);
    ExpectError("/no-zip", {{Page(content, "200 OK", "Content-Encoding: gzip\r\n")}}, 0,
                ERROR_INTERNET_DECODING_FAILED);
    ExpectError("/no-http", {{"QUADREL 1.0 HELLO\r\n\r\n"}}, ERROR_INTERNET_CONNECTION_ABORTED, 0);
    ExpectError("/hangs-up", {{}}, ERROR_INTERNET_CONNECTION_ABORTED, 0);
    ExpectError("/limit", {{PageWithoutLength(limit)}}, 0, 0);
    ExpectError("/announced", {{"HTTP/1.1 200 OK\r\nContent-Length: 1048577\r\n\r\n"}, 0, stayOpen},
                0, ERROR_FILE_TOO_LARGE);
    ExpectError("/endless", {{PageWithoutLength(limit + "x")}, 0, stayOpen}, 0,
                ERROR_FILE_TOO_LARGE);
    ExpectError("/bomb", {{ZippedPage(std::string(50'000'000, '\0'))}}, 0, ERROR_FILE_TOO_LARGE);
}

// What one server says stays with it, and nobody but the server hears of the player's wish.
TEST_F(Internet, RedirectionsAreFollowedTenTimesAndCarryNothingAlong) {
    setenv("http_proxy", RefusedLink().c_str(), 1);
    for (int left = 1; left <= 11; ++left) {
        const std::string target = "/" + std::to_string(left - 1) + "\r\nSet-Cookie: who=you";
        server.Put("/" + std::to_string(left), WebAnswer{{Redirection(target)}, 0, stayOpen});
    }
    server.Put("/0", Page("found"));
    EXPECT_EQ(Fetch(server.Link("/10")).content, "found");
    EXPECT_EQ(Fetch(server.Link("/11")).openError, ERROR_INTERNET_REDIRECT_FAILED);
    ExpectError("/file", {{Redirection("file:///etc/passwd")}}, ERROR_INTERNET_REDIRECT_FAILED, 0);
    unsetenv("http_proxy");
    EXPECT_EQ(server.Requests().size(), 11u + 11u + 1u);
    for (const std::string& request : server.Requests()) {
        const auto head = QString::fromStdString(request);
        EXPECT_TRUE(head.contains("\r\nUser-Agent: Example\r\n", Qt::CaseInsensitive)) << request;
        EXPECT_FALSE(head.contains("Cookie", Qt::CaseInsensitive)) << request;
    }
}

TEST_F(Internet, SafePagesNeedAGoodCertificateAndStaySafe) {
    WebServer safe("good");
    safe.Put("/a.puz", Page("found"));
    server.Put("/up", Redirection(safe.Link("/a.puz")));
    EXPECT_EQ(Fetch(server.Link("/up")).content, "found");
    safe.Put("/down", Redirection(server.Link("/up")));
    EXPECT_EQ(Fetch(safe.Link("/down")).openError, ERROR_INTERNET_HTTPS_TO_HTTP_ON_REDIR);
    const std::pair<std::string, DWORD> bad[] = {{"other", ERROR_INTERNET_SEC_CERT_CN_INVALID},
                                                 {"expired", ERROR_INTERNET_SEC_CERT_DATE_INVALID},
                                                 {"stranger", ERROR_INTERNET_INVALID_CA}};
    for (const auto& [certificate, error] : bad) {
        const WebServer other(certificate);
        EXPECT_EQ(Fetch(other.Link("/a.puz")).openError, error) << certificate;
        EXPECT_TRUE(other.Requests().empty()) << certificate;
    }
    std::string noTls = server.Link("/up");
    noTls.replace(0, 4, "https");
    EXPECT_EQ(Fetch(noTls).openError, ERROR_INTERNET_SECURITY_CHANNEL_ERROR);
}

TEST_F(Internet, SilentServersAreGivenUpAndSlowOnesAreNot) {
    server.Put("/stops", WebAnswer{{Page("content").substr(0, 60), "."}, 20, stayOpen});
    EXPECT_EQ(Fetch(server.Link("/stops"), [] { longestSilence = 50; }).readError,
              ERROR_INTERNET_TIMEOUT);
    ExpectError("/silent", {{}, 0, stayOpen}, ERROR_INTERNET_TIMEOUT, 0);
    longestSilence = 600;
    std::vector<std::string> pieces(10, ".");
    pieces[0] = PageWithoutLength("");
    ExpectError("/slow", {pieces, 70}, 0, 0);
}

TEST_F(Internet, WaitingDropsInput) {
    server.Put("/silent", WebAnswer{{}, 0, stayOpen});
    handheld->TapCell(0, 0);
    Fetch(server.Link("/silent"), [this] {
        handheld->Press('X');
        handheld->Commit("y");
        handheld->Tap(CellSize * 2 + 9, CellSize * 2 + 9);
        handheld->TapPanel(20, 24);
        server.HangUp();
    });
    EXPECT_EQ(PlayerLetters(), "----.----");
    EXPECT_EQ(CursorRow + CursorCol, 0);
    handheld->Press('X');
    EXPECT_EQ(PlayerLetters(), "X---.----") << "input stays dropped";
}

TEST_F(Internet, WaitingShowsASignWhenItLasts) {
    server.Put("/silent", WebAnswer{{}, 0, stayOpen});
    const auto sign = [] { return Host().findChild<BusySign*>(); };
    patienceWithoutSign = 3'600'000;
    Fetch(server.Link("/silent"), [&] {
        EXPECT_FALSE(sign()->isVisible());
        server.HangUp();
    });
    longestSilence = 10'000;
    patienceWithoutSign = 0;
    std::vector<QImage> turning;
    Fetch(server.Link("/silent"), [&] {
        handheld->Resize(2);
        if (sign()->isVisible() && sign()->size() == QSize(344, 88)) {
            turning.push_back(sign()->grab().toImage());
        }
        if (!turning.empty() && turning.front() != turning.back()) {
            server.HangUp();
        }
    });
    ASSERT_FALSE(turning.empty());
    EXPECT_NE(turning.front(), turning.back());
    EXPECT_EQ(sign(), nullptr);
}

}  // namespace
