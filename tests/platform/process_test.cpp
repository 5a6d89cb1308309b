#include "platform/process.h"

#include <gtest/gtest.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QFile>
#include <QtGui/QKeyEvent>
#include <QtGui/QTextBlock>
#include <QtWidgets/QApplication>
#include <QtWidgets/QTextBrowser>
#include <functional>
#include <set>

#include "platform/dialogs.h"
#include "platform/qt/help/help_window.h"
#include "platform/qt/window/end_request.h"
#include "platform/qt/window/window.h"
#include "support/opened_pages.h"
#include "support/played_board.h"

namespace fs = std::filesystem;

namespace {

constexpr const WCHAR* viewer = u"PegHelp.exe";
constexpr const WCHAR* browser = u"iexplore.exe";
constexpr const WCHAR* address = u"http://www.quadrel.example.com/";

QTextBrowser* Page() {
    return ShownHelpWindows().at(0)->findChild<QTextBrowser*>();
}

void PressInHelp(int key, Qt::KeyboardModifiers modifiers) {
    QKeyEvent press(QEvent::KeyPress, key, modifiers);
    QCoreApplication::sendEvent(Page(), &press);
}

// Every piece of the document's text that is formatted alike.
std::vector<QTextFragment> Pieces() {
    std::vector<QTextFragment> pieces;
    for (QTextBlock block = Page()->document()->begin(); block.isValid(); block = block.next()) {
        for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
            pieces.push_back(piece.fragment());
        }
    }
    return pieces;
}

// Each chapter's name and where its heading begins.
std::map<QString, int> Chapters() {
    std::map<QString, int> chapters;
    for (const QTextFragment& piece : Pieces()) {
        for (const QString& name : piece.charFormat().anchorNames()) {
            EXPECT_TRUE(chapters.emplace(name, piece.position()).second) << name.toStdString();
        }
    }
    return chapters;
}

// Where the heading stands, in pixels below the top of the page.
int TopOf(int position) {
    QTextCursor heading(Page()->document());
    heading.setPosition(position);
    return Page()->cursorRect(heading).top();
}

class StartedHelp : public PlayedBoard {
protected:
    void Open(const QString& chapter) {
        const std::u16string line = ("OvelQuadrel.htm" + chapter).toStdU16String();
        EXPECT_TRUE(CreateProcessW(viewer, line.c_str()));
        handheld->Settle();
    }
};

// The desktop's opener of addresses is a script of the test's.
class StartedBrowser : public PlayedBoard {
protected:
    void MakeOpener(int exitCode) {
        const fs::path script = home.root() / "xdg-open";
        const std::string file = opened.string();
        WriteBytes(script, "#!/bin/sh\necho \"$@\" >" + file + ".new\n/bin/mv " + file + ".new " +
                               file + "\nexit " + std::to_string(exitCode) + "\n");
        fs::permissions(script, fs::perms::owner_all);
    }
    static bool Await(const std::function<bool()>& condition) {
        const QDeadlineTimer deadline(10000);
        while (!condition() && !deadline.hasExpired()) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        }
        return condition();
    }
    void ExpectOpened(const std::string& wanted) {
        ASSERT_TRUE(Await([this] { return fs::exists(opened); }));
        EXPECT_EQ(ReadBytes(opened), wanted + "\n");
        fs::remove(opened);
    }
    static void ExpectAddressTold() {
        const std::vector<ShownMessage> messages = TakeShownMessages();
        ASSERT_EQ(messages.size(), 1U);
        EXPECT_NE(messages[0].text.find(address), std::u16string::npos);
    }

    fs::path opened = home.root() / "opened";
    OpenedPages onlyThisOpener{home.root()};
};

}  // namespace

TEST_F(StartedHelp, BringsEveryChapterToTheTopOfOneWindow) {
    Open("#contact_us");
    HelpWindow* first = ShownHelpWindows().at(0);
    const std::map<QString, int> chapters = Chapters();
    EXPECT_LE(TopOf(chapters.at("contact_us")), 20) << "first opened at a chapter";
    ASSERT_TRUE(chapters.contains("trademarks_copyrights"));
    // The last chapters are shorter than the window, and it may be resized.
    for (const QSize size : {QSize(500, 700), QSize(260, 400), QSize(1500, 1600)}) {
        ShownHelpWindows().at(0)->resize(size);
        for (const auto& [name, position] : chapters) {
            Open('#' + name);
            EXPECT_GE(TopOf(position), 0) << name.toStdString() << " at " << size.width();
            EXPECT_LE(TopOf(position), 20) << name.toStdString() << " at " << size.width();
        }
    }
    Open("");
    EXPECT_GE(TopOf(0), 0);
    EXPECT_EQ(ShownHelpWindows(), std::vector<HelpWindow*>{first});
}

TEST_F(StartedHelp, KeepsThePlaceWhileTheTextIsEnlarged) {
    Open("#files");
    const int heading = Chapters().at("files");
    const int usual = Page()->font().pixelSize();
    for (int i = 0; i < 5; ++i) {
        PressInHelp(Qt::Key_Plus, Qt::ControlModifier);
    }
    EXPECT_GT(Page()->font().pixelSize(), usual);
    EXPECT_GE(TopOf(heading), 0);
    EXPECT_LE(TopOf(heading), 40);
    PressInHelp(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(Page()->font().pixelSize(), usual);
}

TEST_F(StartedHelp, EveryLinkLeadsSomewhereAndEveryPictureIsThere) {
    Open("");
    const std::map<QString, int> chapters = Chapters();
    std::set<QString> linked;
    int pictures = 0;
    for (const QTextFragment& piece : Pieces()) {
        const QString link = piece.charFormat().anchorHref();
        SCOPED_TRACE(link.toStdString());
        if (piece.charFormat().isImageFormat()) {
            const QTextImageFormat image = piece.charFormat().toImageFormat();
            ++pictures;
            EXPECT_TRUE(QFile::exists(":/art/" + image.name())) << image.name().toStdString();
            EXPECT_GT(image.width() * image.height(), 0) << image.name().toStdString();
        }
        if (link.startsWith('#')) {
            EXPECT_TRUE(chapters.contains(link.mid(1)));
            linked.insert(link.mid(1));
        } else if (!link.isEmpty()) {
            EXPECT_EQ(QUrl(link).scheme(), "https");
            EXPECT_TRUE(QUrl(link).host().endsWith(".example.com"));
        }
    }
    EXPECT_GT(pictures, 10);
    // The list of contents itself is reached by its button.
    EXPECT_EQ(linked.size() + 1, chapters.size()) << "a chapter that no link leads to";
}

TEST_F(StartedHelp, GivesTheKeysBackToTheGame) {
    for (const auto& [key, modifiers] :
         {std::pair(Qt::Key_Escape, Qt::NoModifier), std::pair(Qt::Key_W, Qt::ControlModifier)}) {
        Open("");
        EXPECT_EQ(QApplication::activeWindow(), ShownHelpWindows().at(0));
        PressInHelp(key, modifiers);
        handheld->Settle();
        EXPECT_TRUE(ShownHelpWindows().empty());
        EXPECT_TRUE(handheld->Running());
        EXPECT_EQ(QApplication::focusWidget(), MainWindow->widget);
    }
}

// Its keys would else go to whatever window has the keyboard.
TEST_F(StartedHelp, LeavesTheInputPanelToTheGame) {
    Play(squareBoard, smallSize);
    handheld->PressPanelButton();
    Open("");
    handheld->TapPanel(12 + 9, 16 + 8);
    EXPECT_EQ(PlayerLetters()[0], 'Q');
}

TEST_F(StartedHelp, EndsWithTheProgram) {
    Open("");
    handheld->Close();
    EXPECT_FALSE(handheld->Running());
    EXPECT_TRUE(ShownHelpWindows().empty());
}

TEST_F(StartedHelp, StartsNoOtherProgram) {
    EXPECT_FALSE(CreateProcessW(u"other.exe", u"OvelQuadrel.htm"));
    EXPECT_FALSE(CreateProcessW(viewer, u"Missing.htm"));
    EXPECT_FALSE(CreateProcessW(viewer, u""));
    for (const WCHAR* line : {u"", u"http://", u"file:///etc/passwd", u"--help", u"example.com"}) {
        EXPECT_FALSE(CreateProcessW(browser, line)) << QString::fromUtf16(line).toStdString();
    }
    EXPECT_TRUE(ShownHelpWindows().empty());
}

TEST_F(StartedBrowser, GetsTheProgramsAddressesAndTheLinksOfTheHelp) {
    MakeOpener(0);
    EXPECT_TRUE(CreateProcessW(browser, address));
    ExpectOpened("http://www.quadrel.example.com/");
    EXPECT_TRUE(CreateProcessW(viewer, u"OvelQuadrel.htm#contact_us"));
    const QUrl shown = Page()->source();
    emit Page()->anchorClicked(QUrl("https://www.quadrel.example.com/"));
    ExpectOpened("https://www.quadrel.example.com/");
    EXPECT_EQ(Page()->source(), shown);
}

// The desktop has an opener, but no browser that it could open.
TEST_F(StartedBrowser, MissingBehindTheOpenerIsSaidToo) {
    constexpr int noBrowser = 3;
    MakeOpener(noBrowser);
    EXPECT_TRUE(CreateProcessW(browser, address));
    AnswerNextMessageBox(IDOK);
    bool open = false;
    DoDuringNextMessageBox([&open] { open = true; });
    ASSERT_TRUE(Await([&open] { return open; }));
    ExpectAddressTold();
}

// It stands above no procedure of the program.
TEST_F(StartedBrowser, MessageDoesNotOutliveTheProgram) {
    DoDuringNextMessageBox([] {
        TellProgramMinimized();
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    });
    EXPECT_FALSE(CreateProcessW(browser, address));
    handheld->Settle();
    EXPECT_FALSE(handheld->Running());
    ExpectAddressTold();
}
