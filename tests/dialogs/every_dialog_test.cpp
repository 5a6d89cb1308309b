#include <QtCore/QCoreApplication>

#include "keyboard/keyboard_drawing.h"
#include "keyboard/keyboard_visibility.h"
#include "platform/qt/host/host_window.h"
#include "resources/ids.h"
#include "support/dialogs.h"
#include "support/menus.h"
#include "support/played_board.h"

namespace {

struct KnownDialog {
    const char* title;
    const char* button;  // of the menu bar, or null when it is in the main menu
    const char* item;
    int command;
    int okButton;
};

constexpr KnownDialog knownDialogs[] = {
    {"Quadrel Clues", "Open the clue list", nullptr, commandClueList, commandClose},
    {"Preferences", nullptr, "Preferences", commandPreferences, commandClose},
    {"Quadrel Quick Help", nullptr, "Help", commandHelp, controlHelpClose},
    {"Download Puzzles", nullptr, "Puzzles/Download", commandDownload, controlKeepLinks},
    {"About Quadrel", "About Quadrel", nullptr, commandAbout, controlAboutClose},
};

class EveryDialog : public PlayedBoard {
protected:
    void Open(const KnownDialog& known) {
        if (known.button != nullptr) {
            EXPECT_TRUE(handheld->PressButton(known.button));
        } else {
            EXPECT_TRUE(ChooseFromBar(*handheld, "Main Menu", QString(known.item).split('/')));
        }
    }
    void Use(const KnownDialog& known, const std::function<void(OpenDialog&)>& use) {
        UseDialog(
            *handheld, [&] { Open(known); }, use);
    }
};

TEST_F(EveryDialog, ClosesByItsButtonTheTitleBarAndEscapeFromEverySize) {
    for (const KnownDialog& known : knownDialogs) {
        for (const MagnificationFlags& size : {smallSize, mediumSize, largeSize}) {
            Play(squareBoard, size);
            const std::function<void(OpenDialog&)> ways[] = {
                [&](OpenDialog& dialog) { dialog.Tap(known.okButton); },
                [](OpenDialog& dialog) { dialog.TapTitleOk(); },
                [](OpenDialog& dialog) { dialog.Press(Qt::Key_Escape); },
            };
            for (const auto& way : ways) {
                Use(known, [&](OpenDialog& dialog) {
                    EXPECT_EQ(dialog.Title(), known.title);
                    way(dialog);
                    EXPECT_FALSE(dialog.IsOpen());
                });
            }
            handheld->Press(Qt::Key_X);
            EXPECT_EQ(PlayerLetters()[0], 'X') << "keys no longer arrive after " << known.title;
        }
    }
}

TEST_F(EveryDialog, LowersTheInputPanelAndTheBoardGetsTheRoom) {
    for (const KnownDialog& known : knownDialogs) {
        Play(squareBoard, mediumSize);
        const int roomy = ViewHeight;
        handheld->PressPanelButton();
        ASSERT_TRUE(Host().PanelUp());
        Use(known, [](OpenDialog&) { EXPECT_FALSE(Host().PanelUp()); });
        EXPECT_EQ(ViewHeight, roomy) << known.title;
    }
}

TEST_F(EveryDialog, LeavesTheKeyboardWhereItIs) {
    for (const KnownDialog& known : knownDialogs) {
        Play(squareBoard, smallSize);
        ShowKeyboard(MainWindow);
        RepaintFully(MainWindow);
        Use(known, [](OpenDialog&) {});
        EXPECT_EQ(KeyboardVisible, 1) << known.title;
        const QImage shown = handheld->Client();
        DrawKeyboardIfVisible(MainWindow);
        EXPECT_EQ(handheld->Client(), shown) << known.title;
        HideKeyboard(MainWindow);
    }
}

TEST_F(EveryDialog, AnImpatientHandOpensItOnce) {
    Play(squareBoard, smallSize);
    const std::string letters = PlayerLetters();
    for (const KnownDialog& known : knownDialogs) {
        int opened = 0;
        const auto open = [&] {
            PostMessageW(MainWindow, WM_COMMAND, static_cast<WPARAM>(known.command), 0);
            PostMessageW(MainWindow, WM_COMMAND, static_cast<WPARAM>(known.command), 0);
            PostMessageW(MainWindow, WM_KEYDOWN, 'Z', 0);
            handheld->Settle();
        };
        UseDialog(*handheld, open, [&](OpenDialog&) {
            ++opened;
            EXPECT_FALSE(handheld->PressButton("Select a new puzzle"));
        });
        EXPECT_EQ(opened, 1) << known.title;
    }
    EXPECT_EQ(PlayerLetters(), letters);
}

TEST_F(EveryDialog, FollowsTheScreenWhenItIsResized) {
    for (const KnownDialog& known : knownDialogs) {
        Use(known, [&](OpenDialog& dialog) {
            const QRect small = dialog.Widget(known.okButton)->geometry();
            handheld->Resize(3);
            const QRect large = dialog.Widget(known.okButton)->geometry();
            EXPECT_EQ(large.topLeft(), small.topLeft() * 3) << known.title;
            EXPECT_EQ(large.size(), small.size() * 3) << known.title;
            EXPECT_EQ(dialog.Drawn().size(), QSize(240 * 3, 294 * 3));
            handheld->Resize(1);
        });
    }
}

TEST_F(EveryDialog, ClosesWithTheProgramWhichSavesItsState) {
    for (const KnownDialog& known : knownDialogs) {
        std::filesystem::remove(home.stateFile());
        Use(known, [](OpenDialog&) { Host().close(); });
        EXPECT_FALSE(handheld->Running()) << known.title;
        EXPECT_TRUE(std::filesystem::exists(home.stateFile())) << known.title;
        Restart();
    }
}

}  // namespace
