// What the player gets from servers of every kind, and does while waiting for them.
#include "platform/internet.h"

#include <QtTest/QTest>

#include "dialogs/downloader.h"
#include "platform/qt/network/busy_sign.h"
#include "platform/qt/network/network_module.h"
#include "platform/qt/network/waiting.h"
#include "support/played_board.h"
#include "support/web_server.h"

namespace {

using namespace std::string_literals;

const std::string stored = "Puzzle file  downloaded successfully!";
const std::string tooLarge = "InternetReadFile Error: df";
const std::string cutOff = "InternetReadFile Error: 2eff";
const std::string refused = "InternetOpenUrl Error: 2efe";
const std::string stopped = "InternetOpenUrl Error: 2ef1";
const std::string notDecoded = "InternetReadFile Error: 2f8f";
const std::string gzipped = "Content-Encoding: gzip\r\n";

std::string Gzip(const std::string& content) {
    QProcess gzip;
    gzip.start("gzip", {"-c"});
    gzip.write(QByteArray::fromStdString(content));
    gzip.closeWriteChannel();
    EXPECT_TRUE(gzip.waitForFinished());
    return gzip.readAllStandardOutput().toStdString();
}

std::string Redirection(const std::string& target) {
    return Page("It has moved.", "Location: " + target + "\r\n", "302 Found");
}

BusySign* ShownSign() {
    auto* sign = Host().findChild<BusySign*>();
    return sign != nullptr && sign->isVisible() ? sign : nullptr;
}

class Internet : public PlayedBoard {
protected:
    // What the player is told in the end about a download in the place of an older file.
    std::string Told(const std::string& link) {
        WriteBytes(file, "old");
        ForgetPlans();
        ChooseNextFile(file);
        AnswerNextMessageBox(IDYES);
        AnswerNextMessageBox(IDYES);
        DownloadPuzzle(MainWindow, WidenPath(link).c_str());
        return NarrowPath(TakeShownMessages().back().text);
    }

    WebServer server;
    std::filesystem::path file = home.documents() / "a.puz";
    std::string puzzle = PuzzleBytes(squareBoard);
    QScopedValueRollback<int> silence{longestSilence};
    QScopedValueRollback<int> patience{patienceWithoutSign};
};

// As long as an answer may be. Fault: half a puzzle is taken for a whole one.
TEST_F(Internet, AnswersAreStoredWholeOrNotAtAllHoweverTheyAreSent) {
    std::string content = puzzle;
    std::generate_n(std::back_inserter(content), 1024 * 1024 - puzzle.size(),
                    [random = std::mt19937()]() mutable { return random() & 15; });
    const std::string zipped = Page(Gzip(content), gzipped);
    const std::string page = Page(content);
    const std::string chunked = PageWithoutLength("100000\r\n", "Transfer-Encoding: chunked\r\n");
    const std::string bomb = Gzip(puzzle + std::string(50'000'000, '\0'));
    const auto emptyBlocks = QByteArray("\0\0\0\xFF\xFF", 5).repeated(210'000).toStdString();
    const auto manyLines = QByteArray("Another: line\r\n").repeated(5000).toStdString();
    const std::tuple<const char*, std::string, WebAnswer> answers[] = {
        {"/kept", stored, {{Page(content, "Keep: it\r\n")}, 0, true}},
        {"/no-length", stored, {{PageWithoutLength(content.substr(0, 9)), content.substr(9)}, 5}},
        {"/chunks", stored, {{chunked, content, "\r\n0\r\n\r\n"}, 5}},
        {"/zipped", stored, {{zipped.substr(0, 20000), zipped.substr(20000)}, 5}},
        {"/missing", stored, {{Page(content, "", "404 Not Found")}}},
        {"/no-target", stored, {{Page(content, "", "302 Found")}}},
        {"/cut", cutOff, {{page.substr(0, 100), page.substr(100, 3000)}, 50}},
        {"/cut-later", cutOff, {{page.substr(0, 70000)}}},
        {"/cut-zip", cutOff, {{PageWithoutLength(bomb.substr(0, 300), gzipped)}}},
        {"/cut-chunks", cutOff, {{chunked, content}, 5}},
        {"/bad-chunks", cutOff, {{chunked, content + "?\r\n0\r\n\r\n"}, 5}},
        {"/two-zips", notDecoded, {{Page(Gzip(puzzle) + Gzip("b"), gzipped)}}},
        {"/no-zip", notDecoded, {{Page(puzzle, gzipped)}}},
        {"/hollow-zip", tooLarge, {{PageWithoutLength(bomb.substr(0, 10) + emptyBlocks, gzipped)}}},
        {"/bomb", tooLarge, {{Page(bomb, gzipped)}}},
        {"/announced", tooLarge, {{Page(content + "x").substr(0, 99)}, 0, true}},
        {"/endless", tooLarge, {{PageWithoutLength(content + "x")}, 0, true}},
        {"/endless-head",
         "InternetOpenUrl Error: 2f78",
         {{page.substr(0, 17) + manyLines}, 0, true}},
        {"/no-http", refused, {{"QUADREL 1.0 HELLO\r\n\r\n"}}},
        {"/hangs-up", refused, {}}};
    for (const auto& [path, told, answer] : answers) {
        server.Put(path, answer);
        EXPECT_EQ(Told(server.Link(path)), told) << path;
        EXPECT_TRUE(ReadBytes(file) == (told == stored ? content : "old")) << path;
    }
    for (const std::string& head : {""s, gzipped}) {
        server.Put("/empty", {{Page("", head)}});
        EXPECT_EQ(Told(server.Link("/empty")), stored) << "an empty answer is one, without a file";
        EXPECT_EQ(ReadBytes(file), "old");
    }
}

// What one server says stays with it, and nobody but the server hears of the player's wish.
TEST_F(Internet, RedirectionsAreFollowedTenTimesAndCarryNothingAlong) {
    setenv("http_proxy", WebServer().Link("").c_str(), 1);
    for (int left = 1; left <= 11; ++left) {
        const std::string target = "/" + std::to_string(left - 1) + "\r\nSet-Cookie: who=you";
        server.Put("/" + std::to_string(left), {{Redirection(target)}, 0, true});
    }
    server.Put("/0", {{Page(puzzle)}});
    server.Put("/file", {{Redirection("file:///etc/passwd")}});
    EXPECT_EQ(Told(server.Link("/10")), stored);
    EXPECT_EQ(Told(server.Link("/11")), "InternetOpenUrl Error: 2f7c");
    EXPECT_EQ(Told(server.Link("/file")), "InternetOpenUrl Error: 2f7c");
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
    safe.Put("/a.puz", {{Page(puzzle)}});
    server.Put("/up", {{Redirection(safe.Link("/a.puz"))}});
    safe.Put("/down", {{Redirection(server.Link("/up"))}});
    EXPECT_EQ(Told(server.Link("/up")), stored);
    EXPECT_EQ(Told(safe.Link("/down")), "InternetOpenUrl Error: 2f08");
    EXPECT_EQ(Told("https" + server.Link("/up").substr(4)), "InternetOpenUrl Error: 2f7d");
    for (const auto& [certificate, error] :
         {std::pair("other", "2f06"), {"expired", "2f05"}, {"stranger", "2f0d"}}) {
        const WebServer other(certificate);
        EXPECT_EQ(Told(other.Link("/a.puz")), "InternetOpenUrl Error: "s + error) << certificate;
        EXPECT_TRUE(other.Requests().empty()) << certificate;
    }
}

TEST_F(Internet, WithoutAServerIsAnError) {
    for (const auto& [link, error] : {std::pair("gopher://127.0.0.1/"s, "2ee6"),
                                      {"", "2ee5"},
                                      {"http:/a.puz", "2ee5"},
                                      {WebServer().Link("/a.puz"), "2efd"}}) {
        EXPECT_EQ(Told(link), "InternetOpenUrl Error: "s + error) << link;
    }
    const QScopedValueRollback<QString> usual(networkModuleName, "libquadrel_network_missing.so");
    EXPECT_EQ(Told(server.Link("/a.puz")), "The network cannot be used: 7e");
}

TEST_F(Internet, SilentServersAreGivenUpAndSlowOnesAreNot) {
    std::vector<std::string> pieces(10, "n");
    pieces[0] = PageWithoutLength(puzzle);
    server.Put("/stops", {{Page(puzzle).substr(0, 60), "."}, 20, true});
    server.Put("/silent", {{}, 0, true});
    server.Put("/slow", {pieces, 70});
    QTimer::singleShot(0, [] { longestSilence = 50; });
    EXPECT_EQ(Told(server.Link("/stops")), "InternetReadFile Error: 2ee2");
    EXPECT_EQ(Told(server.Link("/silent")), "InternetOpenUrl Error: 2ee2");
    longestSilence = 600;
    EXPECT_EQ(Told(server.Link("/slow")), stored);
}

// Only Escape and a tap on the sign are heard: both end the wait.
TEST_F(Internet, WaitingDropsInputAndShowsASignWhenItLasts) {
    server.Put("/silent", {{}, 0, true});
    patienceWithoutSign = 3'600'000;
    longestSilence = 10'000;
    QTimer::singleShot(0, [this] {
        EXPECT_EQ(ShownSign(), nullptr);
        handheld->Press('X');
        handheld->Commit("y");
        handheld->TapCell(2, 2);
        handheld->TapPanel(20, 24);
        handheld->Press(Qt::Key_Escape);
    });
    EXPECT_EQ(Told(server.Link("/silent")), stopped);
    handheld->Press('Z');
    EXPECT_EQ(PlayerLetters(), "Z---.----");
    patienceWithoutSign = 0;
    std::vector<QImage> turning;
    QTimer turns;
    QObject::connect(&turns, &QTimer::timeout, [&] {
        if (ShownSign() == nullptr) {
            return;
        }
        if (ShownSign()->geometry() == QRect(68, 262, 344, 116)) {
            turning.push_back(ShownSign()->grab().toImage());
        }
        handheld->Resize(2);
        if (!turning.empty() && turning.front() != turning.back()) {
            QTest::mouseClick(Host().windowHandle(), Qt::LeftButton, {}, {90, 340});
        }
    });
    turns.start(1);
    EXPECT_EQ(Told(server.Link("/silent")), stopped) << "it does not turn";
    ExpectLooksAsRecorded(turning.front().copy(90, 0, 254, 116), "Waiting sign");
}

}  // namespace
