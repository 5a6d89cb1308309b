#include "platform/process.h"

#include "support/menus.h"
#include "support/opened_pages.h"
#include "support/played_board.h"

namespace {

using StartedHelp = PlayedBoard;

QTextBrowser* OpenHelp(const QString& chapter = "") {
    const std::u16string line = ("OvelQuadrel.htm" + chapter).toStdU16String();
    EXPECT_TRUE(CreateProcessW(u"PegHelp.exe", line.c_str()));
    QCoreApplication::processEvents();
    return ShownHelpWindows().at(0)->findChild<QTextBrowser*>();
}

TEST_F(StartedHelp, BringsEveryChapterToTheTopOfOneWindowAndLinksThemAll) {
    QTextBrowser* page = OpenHelp();
    QMap<QString, int> chapters;  // where their headings begin
    QMap<QString, int> links{{"#contents", 0}};
    for (QTextBlock block = page->document()->begin(); block.isValid(); block = block.next()) {
        for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
            const QTextCharFormat format = piece.fragment().charFormat();
            for (const QString& name : format.anchorNames()) {
                chapters['#' + name] = piece.fragment().position();
            }
            if (format.anchorHref().startsWith('#')) {
                links[format.anchorHref()] = 0;
            }
        }
    }
    EXPECT_GT(chapters.size(), 10u);
    EXPECT_EQ(chapters.keys(), links.keys());
    // The last chapters are shorter than the window, and it may be resized.
    for (const QSize size : {QSize(500, 700), QSize(260, 400), QSize(1500, 1600)}) {
        page->window()->resize(size);
        for (const auto& [name, position] : chapters.asKeyValueRange()) {
            EXPECT_EQ(OpenHelp(name), page) << "another window";
            QTextCursor heading(page->document());
            heading.setPosition(position);
            const int top = page->cursorRect(heading).top();
            EXPECT_TRUE(top >= 0 && top <= 20) << name.toStdString() << " at " << size.width();
        }
        const QTextFrameFormat column = page->document()->rootFrame()->frameFormat();
        const double width = size.width() - column.leftMargin() - column.rightMargin();
        EXPECT_TRUE(width > 200 && width < 40 * page->font().pixelSize()) << width;
    }
    EXPECT_EQ(ShownHelpWindows().size(), 1u);
    handheld->Close();
    EXPECT_TRUE(ShownHelpWindows().empty());
}

TEST_F(StartedHelp, LeavesThePanelAndWhenItIsClosedTheKeysToTheGame) {
    Play(squareBoard, smallSize);
    handheld->PressPanelButton();
    QTextBrowser* page = OpenHelp();
    handheld->TapPanel(12 + 9, 16 + 8);
    EXPECT_EQ(PlayerLetters()[0], 'Q');
    SendKey(page, Qt::Key_Escape);
    handheld->Settle();
    EXPECT_TRUE(ShownHelpWindows().empty());
    EXPECT_EQ(QApplication::focusWidget(), MainWindow->widget);
}

// The desktop's opener of addresses is a script of the test's; the second one finds no browser.
TEST_F(StartedHelp, SendsAddressesToTheDesktopsBrowserAndTellsThemWhenThereIsNone) {
    const OpenedPages onlyThisOpener(home.root());
    const std::filesystem::path opened = home.root() / "opened";
    const std::filesystem::path script = home.root() / "xdg-open";
    for (const std::string exitCode : {"0", "3"}) {
        WriteBytes(script, "#!/bin/sh\necho \"$@\" >" + opened.string() + "\nexit " + exitCode);
        std::filesystem::permissions(script, std::filesystem::perms::owner_all);
        emit OpenHelp()->anchorClicked(QUrl("https://www.quadrel.example.com/"));
        bool told = exitCode == "0";
        DoDuringNextMessageBox([&told] { told = true; });
        // The shell makes the file before it writes into it.
        const auto written = [&] { return exists(opened) && file_size(opened) > 0; };
        EXPECT_TRUE(QTest::qWaitFor([&] { return told && written(); }, 10'000));
        EXPECT_EQ(ReadBytes(opened), "https://www.quadrel.example.com/\n");
        EXPECT_EQ(TakeShownMessages().size(), exitCode == "0" ? 0u : 1u);
        std::filesystem::remove(opened);
    }
}

}  // namespace
