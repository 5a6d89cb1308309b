#include "platform/internet.h"

#include <QtCore/QScopedValueRollback>
#include <QtTest/QTest>

#include "platform/errors.h"
#include "platform/qt/network/busy_sign.h"
#include "platform/qt/network/waiting.h"
#include "support/played_board.h"
#include "support/web_server.h"

namespace {

struct Fetched {
    DWORD error = 0;
    std::string content;
};

bool SignIsShown() {
    const auto* sign = Host().findChild<BusySign*>();
    return sign != nullptr && sign->isVisible();
}

// Something happens again and again while the program waits. A block that comes short would be
// taken for the whole start of a file.
Fetched Fetch(
    const std::string& address, const std::function<void()>& meanwhile = [] {}) {
    QTimer turns;
    QObject::connect(&turns, &QTimer::timeout, meanwhile);
    turns.start(1);
    HINTERNET root = InternetOpenW(u"Example", INTERNET_OPEN_TYPE_DIRECT, nullptr, nullptr, 0);
    HINTERNET link =
        InternetOpenUrlW(root, WidenPath(address).c_str(), nullptr, 0, INTERNET_FLAG_RAW_DATA, 0);
    Fetched fetched{link == nullptr ? GetLastError() : 0, ""};
    std::string block(32000, '\0');
    for (DWORD count = 1; link != nullptr && count > 0;) {
        if (!InternetReadFile(link, block.data(), 32000, &count)) {
            fetched.error = GetLastError();
        }
        EXPECT_FALSE(SignIsShown()) << "between the waits";
        EXPECT_TRUE(count == 0 || fetched.content.size() % 32000 == 0) << address;
        fetched.content += block.substr(0, count);
    }
    EXPECT_EQ(InternetCloseHandle(link), link != nullptr);
    EXPECT_TRUE(InternetCloseHandle(root));
    return fetched;
}

class Internet : public PlayedBoard {
protected:
    WebServer server;
    QScopedValueRollback<int> silence{longestSilence};
    QScopedValueRollback<int> patience{patienceWithoutSign};
};

// As long as an answer may be. Fault: half a puzzle is taken for a whole one.
TEST_F(Internet, AnswersArriveWholeOrAreErrorsHoweverTheyAreSent) {
    std::string content(1024 * 1024, '\0');
    std::generate(content.begin(), content.end(),
                  [random = std::mt19937()]() mutable { return static_cast<char>(random() & 15); });
    const std::string gzipped = "Content-Encoding: gzip\r\n";
    const std::string zipped = Page(Gzip(content), "200 OK", gzipped);
    const std::string page = Page(content);
    const std::string chunked = "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n100000\r\n";
    const std::string bomb = Gzip(std::string(50'000'000, '\0'));
    std::string emptyBlocks;
    while (emptyBlocks.size() <= content.size()) {
        emptyBlocks.append("\0\0\0\xFF\xFF", 5);
    }
    std::string manyLines;
    while (manyLines.size() < 65536) {
        manyLines += "Another: line\r\n";
    }
    const std::tuple<const char*, DWORD, WebAnswer> answers[] = {
        {"/kept", 0, {{Page(content, "200 OK", "Keep: it\r\n")}, 0, true}},
        {"/no-length", 0, {{PageWithoutLength(content.substr(0, 9)), content.substr(9)}, 5}},
        {"/chunks", 0, {{chunked, content, "\r\n0\r\n\r\n"}, 5}},
        {"/zipped", 0, {{zipped.substr(0, 20000), zipped.substr(20000)}, 5}},
        {"/missing", 0, {{Page(content, "404 Not Found")}}},
        {"/no-target", 0, {{Page(content, "302 Found")}}},
        {"/cut",
         ERROR_INTERNET_CONNECTION_RESET,
         {{page.substr(0, 100), page.substr(100, 3000)}, 50}},
        {"/cut-zip",
         ERROR_INTERNET_CONNECTION_RESET,
         {{PageWithoutLength("").insert(17, gzipped) + bomb.substr(0, 300)}}},
        {"/two-zips",
         ERROR_INTERNET_DECODING_FAILED,
         {{Page(Gzip("a") + Gzip("b"), "200 OK", gzipped)}}},
        {"/hollow-zip",
         ERROR_FILE_TOO_LARGE,
         {{PageWithoutLength("").insert(17, gzipped) + bomb.substr(0, 10) + emptyBlocks}}},
        {"/cut-chunks", ERROR_INTERNET_CONNECTION_RESET, {{chunked, content}, 5}},
        {"/endless-head",
         ERROR_HTTP_INVALID_SERVER_RESPONSE,
         {{"HTTP/1.1 200 OK\r\n" + manyLines}, 0, true}},
        {"/no-zip", ERROR_INTERNET_DECODING_FAILED, {{Page("Hello!", "200 OK", gzipped)}}},
        {"/no-http", ERROR_INTERNET_CONNECTION_ABORTED, {{"QUADREL 1.0 HELLO\r\n\r\n"}}},
        {"/hangs-up", ERROR_INTERNET_CONNECTION_ABORTED, {}},
        {"/announced", ERROR_FILE_TOO_LARGE, {{Page(content + "x").substr(0, 99)}, 0, true}},
        {"/endless", ERROR_FILE_TOO_LARGE, {{PageWithoutLength(content + "x")}, 0, true}},
        {"/bomb", ERROR_FILE_TOO_LARGE, {{Page(bomb, "200 OK", gzipped)}}}};
    for (const auto& [path, error, answer] : answers) {
        server.Put(path, answer);
        const Fetched fetched = Fetch(server.Link(path));
        EXPECT_EQ(fetched.error, error) << path;
        EXPECT_TRUE(error != 0 || fetched.content == content) << path;
    }
    server.Put("/empty-zip", {{Page("", "200 OK", gzipped)}});
    EXPECT_EQ(Fetch(server.Link("/empty-zip")).error, 0u);
}

// What one server says stays with it, and nobody but the server hears of the player's wish.
TEST_F(Internet, RedirectionsAreFollowedTenTimesAndCarryNothingAlong) {
    setenv("http_proxy", WebServer().Link("").c_str(), 1);
    for (int left = 1; left <= 11; ++left) {
        const std::string target = "/" + std::to_string(left - 1) + "\r\nSet-Cookie: who=you";
        server.Put("/" + std::to_string(left), {{Redirection(target)}, 0, true});
    }
    server.Put("/0", {{Page("found")}});
    EXPECT_EQ(Fetch(server.Link("/10")).content, "found");
    EXPECT_EQ(Fetch(server.Link("/11")).error, ERROR_INTERNET_REDIRECT_FAILED);
    server.Put("/file", {{Redirection("file:///etc/passwd")}});
    EXPECT_EQ(Fetch(server.Link("/file")).error, ERROR_INTERNET_REDIRECT_FAILED);
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
    safe.Put("/a.puz", {{Page("found")}});
    server.Put("/up", {{Redirection(safe.Link("/a.puz"))}});
    EXPECT_EQ(Fetch(server.Link("/up")).content, "found");
    safe.Put("/down", {{Redirection(server.Link("/up"))}});
    EXPECT_EQ(Fetch(safe.Link("/down")).error, ERROR_INTERNET_HTTPS_TO_HTTP_ON_REDIR);
    EXPECT_EQ(Fetch("https" + server.Link("/up").substr(4)).error,
              ERROR_INTERNET_SECURITY_CHANNEL_ERROR);
    for (const auto& [certificate, error] : {std::pair("other", ERROR_INTERNET_SEC_CERT_CN_INVALID),
                                             {"expired", ERROR_INTERNET_SEC_CERT_DATE_INVALID},
                                             {"stranger", ERROR_INTERNET_INVALID_CA}}) {
        const WebServer other(certificate);
        EXPECT_EQ(Fetch(other.Link("/a.puz")).error, error) << certificate;
        EXPECT_TRUE(other.Requests().empty()) << certificate;
    }
}

TEST_F(Internet, SilentServersAreGivenUpAndSlowOnesAreNot) {
    server.Put("/stops", {{Page("content").substr(0, 60), "."}, 20, true});
    server.Put("/silent", {{}, 0, true});
    server.Put("/slow", {std::vector<std::string>(10, PageWithoutLength("")), 70});
    EXPECT_EQ(Fetch(server.Link("/stops"), [] { longestSilence = 50; }).error,
              ERROR_INTERNET_TIMEOUT);
    EXPECT_EQ(Fetch(server.Link("/silent")).error, ERROR_INTERNET_TIMEOUT);
    longestSilence = 600;
    EXPECT_EQ(Fetch(server.Link("/slow")).error, 0u);
}

// Only Escape and a tap on the sign are heard: both end the wait.
TEST_F(Internet, WaitingDropsInputAndShowsASignWhenItLasts) {
    server.Put("/silent", {{}, 0, true});
    patienceWithoutSign = 3'600'000;
    const Fetched escaped = Fetch(server.Link("/silent"), [this] {
        EXPECT_FALSE(SignIsShown());
        handheld->Press('X');
        handheld->Commit("y");
        handheld->TapCell(2, 2);
        handheld->TapPanel(20, 24);
        handheld->Press(Qt::Key_Escape);
    });
    EXPECT_EQ(escaped.error, ERROR_INTERNET_OPERATION_CANCELLED);
    handheld->Press('Z');
    EXPECT_EQ(PlayerLetters(), "Z---.----");
    patienceWithoutSign = 0;
    longestSilence = 10'000;
    std::vector<QImage> turning;
    const Fetched tapped = Fetch(server.Link("/silent"), [&] {
        handheld->Resize(2);
        auto* sign = Host().findChild<BusySign*>();
        if (SignIsShown() && sign->geometry() == QRect(68, 262, 344, 116)) {
            turning.push_back(sign->grab().toImage());
        }
        if (!turning.empty() && turning.front() != turning.back()) {
            QTest::mouseClick(Host().windowHandle(), Qt::LeftButton, {}, {90, 340});
        }
    });
    EXPECT_EQ(tapped.error, ERROR_INTERNET_OPERATION_CANCELLED) << "it does not turn";
}

}  // namespace
