#include "platform/dialogs.h"
#include "platform/qt/host/host_window.h"
#include "resources/ids.h"
#include "support/downloads.h"
#include "support/played_board.h"
#include "support/web_server.h"

namespace {

using Links = std::vector<std::string>;

const std::string defaultLink = "http://www.example.com/daily/puzzles/today.puz";

class DownloadDialog : public PlayedBoard {
protected:
    void Use(const std::function<void(OpenDialog&)>& use) {
        UseDownloadDialog(*handheld, use);
    }
    std::filesystem::path ListFile() const {
        return home.programFolder() / "quadrelhttplist.dat";
    }
    void Keep(const std::string& bytes) {
        WriteBytes(ListFile(), bytes);
    }
    // What the dialog shows of a file, and what its OK writes then.
    Links Shown() {
        Links links;
        Use([&](OpenDialog& dialog) { links = dialog.Lines(controlLinks); });
        return links;
    }
    void PressOk() {
        Use([](OpenDialog& dialog) {
            dialog.Tap(controlKeepLinks);
            EXPECT_FALSE(dialog.IsOpen());
        });
    }
};

std::string Bytes(const Links& links) {
    std::string bytes;
    for (const std::string& link : links) {
        bytes.append(link).push_back('\0');
    }
    return bytes;
}

TEST_F(DownloadDialog, OnlyOkKeepsTheLinksAsTheyAreShown) {
    EXPECT_EQ(Shown(), Links{defaultLink});
    EXPECT_FALSE(std::filesystem::exists(ListFile())) << "the title bar's OK keeps nothing";
    PressOk();
    EXPECT_EQ(ReadBytes(ListFile()), Bytes({defaultLink}));
    const Links links = {"http://b.example/caf\xC3\xA9.puz", "http://a.example/1.puz", "x"};
    Keep(Bytes(links));
    EXPECT_EQ(Shown(), links);
    PressOk();
    EXPECT_EQ(ReadBytes(ListFile()), Bytes(links));
}

TEST_F(DownloadDialog, AChosenOrANewLinkIsEditedWithTheInputPanelUp) {
    Keep(Bytes({"http://one.example/", "http://two.example/"}));
    Use([this](OpenDialog& dialog) {
        EXPECT_FALSE(Host().PanelUp());
        dialog.TapLine(controlLinks, 1);
        EXPECT_EQ(dialog.TextOf(controlLink), "http://two.example/");
        EXPECT_TRUE(dialog.HasFocus(controlLink));
        EXPECT_TRUE(Host().PanelUp());
        dialog.Press(Qt::Key_Tab);
        EXPECT_FALSE(Host().PanelUp());
        dialog.Tap(controlGetNew);
        EXPECT_TRUE(Host().PanelUp());
        handheld->TapPanel(12 + 9, 16 + 8);  // q
        dialog.Type(controlLink, ".example");
        EXPECT_EQ(dialog.TextOf(controlLink), "http://q.example");
    });
    EXPECT_FALSE(Host().PanelUp());
}

TEST_F(DownloadDialog, DeletesTheSelectedLinkOnlyOnYesAndOnlyOkKeepsThat) {
    const Links links = {"http://one.example/", "http://two.example/", "http://three.example/"};
    Keep(Bytes(links));
    const auto deleteSecond = [](OpenDialog& dialog, int answer) {
        dialog.TapLine(controlLinks, 1);
        AnswerNextMessageBox(answer);
        dialog.Tap(controlDeleteLink);
    };
    Use([&](OpenDialog& dialog) {
        dialog.Tap(controlDeleteLink);
        EXPECT_EQ(TakeShownMessages(), std::vector<ShownMessage>()) << "nothing is selected";
        deleteSecond(dialog, IDNO);
        EXPECT_EQ(dialog.Lines(controlLinks), links);
        EXPECT_EQ(TakeShownMessages(),
                  (std::vector<ShownMessage>{{u"Delete Link ?", u"New Game"}}));
        deleteSecond(dialog, IDYES);
        EXPECT_EQ(dialog.Lines(controlLinks), (Links{links[0], links[2]}));
    });
    EXPECT_EQ(ReadBytes(ListFile()), Bytes(links));
    Use([&](OpenDialog& dialog) {
        deleteSecond(dialog, IDYES);
        dialog.Tap(controlKeepLinks);
    });
    EXPECT_EQ(ReadBytes(ListFile()), Bytes({links[0], links[2]}));
    TakeShownMessages();
}

TEST_F(DownloadDialog, ADownloadedLinkIsListedOnce) {
    std::filesystem::create_directories(home.documents() / "Quadrel Puzzles");
    WebServer server;
    server.Put("/a.puz", Page(PuzzleBytes(squareBoard)));
    server.Put("/A.PUZ", Page(PuzzleBytes(squareBoard)));
    Use([&](OpenDialog& dialog) {
        for (const char* path : {"/a.puz", "/a.puz", "/A.PUZ"}) {
            const std::string link = server.Link(path);
            dialog.Tap(controlGetNew);
            dialog.Type(controlLink, QString::fromStdString(link.substr(7)));
            AcceptNextFile();
            AnswerNextMessageBox(IDYES);
            AnswerNextMessageBox(IDYES);
            dialog.Press(Qt::Key_Return);
            EXPECT_EQ(dialog.Lines(controlLinks), (Links{defaultLink, server.Link("/a.puz")}));
            EXPECT_TRUE(dialog.HasFocus(controlLinks));
            ForgetPlans();
        }
        EXPECT_EQ(server.Requests().size(), 3u);
        dialog.Tap(controlKeepLinks);
    });
    EXPECT_EQ(ReadBytes(ListFile()), Bytes({defaultLink, server.Link("/a.puz")}));
    TakeShownMessages();
    TakeShownChoosers();
}

}  // namespace
