#include "platform/process.h"

#include <gtest/gtest.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QFile>
#include <QtGui/QKeyEvent>
#include <QtGui/QTextBlock>
#include <QtWidgets/QApplication>
#include <QtWidgets/QTextBrowser>

#include "platform/qt/help/help_window.h"
#include "platform/qt/window/window.h"
#include "support/opened_pages.h"
#include "support/played_board.h"

namespace {

constexpr const WCHAR* viewer = u"PegHelp.exe";
constexpr const WCHAR* browser = u"iexplore.exe";

class StartedHelp : public PlayedBoard {
protected:
    static QTextBrowser* Page() {
        return ShownHelpWindows().at(0)->findChild<QTextBrowser*>();
    }
    // Where the heading stands, in pixels below the top of the page.
    static int TopOf(int position) {
        QTextCursor heading(Page()->document());
        heading.setPosition(position);
        return Page()->cursorRect(heading).top();
    }
    void Open(const QString& chapter) {
        const std::u16string line = ("OvelQuadrel.htm" + chapter).toStdU16String();
        EXPECT_TRUE(CreateProcessW(viewer, line.c_str()));
        handheld->Settle();
    }
    // Notes where each chapter's heading begins and what the links lead to.
    void ReadPage() {
        Open("");
        auto* document = Page()->document();
        for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
            for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
                const QTextCharFormat format = piece.fragment().charFormat();
                for (const QString& name : format.anchorNames()) {
                    chapters[name] = piece.fragment().position();
                }
                if (!format.anchorHref().isEmpty()) {
                    links.insert(format.anchorHref());
                }
            }
        }
    }

    std::map<QString, int> chapters;
    QSet<QString> links;
};

TEST_F(StartedHelp, BringsEveryChapterToTheTopOfOneWindow) {
    ReadPage();
    HelpWindow* first = ShownHelpWindows().at(0);
    // The last chapters are shorter than the window, and it may be resized.
    for (const QSize size : {QSize(500, 700), QSize(260, 400), QSize(1500, 1600)}) {
        first->resize(size);
        for (const auto& [name, position] : chapters) {
            Open('#' + name);
            EXPECT_GE(TopOf(position), 0) << name.toStdString() << " at " << size.width();
            EXPECT_LE(TopOf(position), 20) << name.toStdString() << " at " << size.width();
        }
    }
    EXPECT_EQ(ShownHelpWindows(), std::vector<HelpWindow*>{first});
    handheld->Close();
    EXPECT_TRUE(ShownHelpWindows().empty());
}

TEST_F(StartedHelp, EveryLinkLeadsSomewhereAndEveryChapterIsLinked) {
    ReadPage();
    for (const QString& link : links) {
        EXPECT_TRUE(link.startsWith("https://") || chapters.contains(link.mid(1)))
            << link.toStdString();
    }
    for (const auto& [name, position] : chapters) {
        EXPECT_TRUE(links.contains('#' + name) || name == "contents") << name.toStdString();
    }
    EXPECT_GT(chapters.size(), 10u);
}

TEST_F(StartedHelp, LeavesThePanelAndWhenItIsClosedTheKeysToTheGame) {
    Play(squareBoard, smallSize);
    handheld->PressPanelButton();
    Open("");
    handheld->TapPanel(12 + 9, 16 + 8);
    EXPECT_EQ(PlayerLetters()[0], 'Q');
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QCoreApplication::sendEvent(Page(), &escape);
    handheld->Settle();
    EXPECT_TRUE(ShownHelpWindows().empty());
    EXPECT_EQ(QApplication::focusWidget(), MainWindow->widget);
}

// The desktop's opener of addresses is a script of the test's; the second one
// finds no browser.
TEST_F(StartedHelp, SendsAddressesToTheDesktopsBrowserAndTellsThemWhenThereIsNone) {
    const OpenedPages onlyThisOpener(home.root());
    const std::filesystem::path opened = home.root() / "opened";
    for (const std::string exitCode : {"0", "3"}) {
        const std::filesystem::path script = home.root() / "xdg-open";
        WriteBytes(script, "#!/bin/sh\necho \"$@\" >" + opened.string() + "\nexit " + exitCode);
        std::filesystem::permissions(script, std::filesystem::perms::owner_all);
        Open("");
        emit Page()->anchorClicked(QUrl("https://www.quadrel.example.com/"));
        bool told = exitCode == "0";
        DoDuringNextMessageBox([&told] { told = true; });
        // The shell makes the file before it writes into it.
        const auto written = [&] { return exists(opened) && file_size(opened) > 0; };
        const QDeadlineTimer deadline(10'000);
        while (!(told && written()) && !deadline.hasExpired()) {
            handheld->Settle();
        }
        EXPECT_EQ(ReadBytes(opened), "https://www.quadrel.example.com/\n");
        EXPECT_EQ(TakeShownMessages().size(), exitCode == "0" ? 0u : 1u);
        std::filesystem::remove(opened);
        ForgetPlans();
    }
}

}  // namespace
