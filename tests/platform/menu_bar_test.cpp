// The menu bar without a stylus.
#include <gtest/gtest.h>

#include <QtWidgets/QApplication>
#include <QtWidgets/QMenu>

#include "platform/qt/host/host_window.h"
#include "support/menus.h"
#include "support/played_board.h"

namespace {

class MenuBarKeys : public PlayedBoard {
protected:
    // The headless screen does not see that a window which was hidden is active again; another
    // one that comes and goes makes it look.
    MenuBarKeys() {
        QWidget other;
        other.show();
        handheld->Settle();
        other.hide();
        Host().activateWindow();
        handheld->Settle();
    }
    static std::string FocusedButton() {
        QWidget* focus = Host().focusWidget();
        return focus == nullptr ? "" : focus->toolTip().toStdString();
    }
    void Key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        PressFocusedKey(*handheld, key, modifiers);
    }
};

TEST_F(MenuBarKeys, F10AndAltGoToTheBarAndBack) {
    for (int key : {Qt::Key_F10, Qt::Key_Alt}) {
        for (int back : {int{Qt::Key_Escape}, key}) {
            Key(key);
            EXPECT_EQ(FocusedButton(), "Main Menu");
            Key(Qt::Key_Shift);
            EXPECT_EQ(FocusedButton(), "Main Menu");
            Key(back);
            EXPECT_EQ(FocusedButton(), "");
        }
    }
}

// Faults: keys that are not the bar's are lost, or leave the focus there.
TEST_F(MenuBarKeys, OtherKeysAreThePrograms) {
    Play(lopsidedBoard, smallSize);
    Key(Qt::Key_F10);
    Key(Qt::Key_K);
    EXPECT_EQ(PlayerLetters()[0], 'K');
    EXPECT_EQ(FocusedButton(), "");
    Key(Qt::Key_F10);
    Key(Qt::Key_Right);
    Key(Qt::Key_Down);
    EXPECT_EQ(std::pair(CursorRow, CursorCol), std::pair(0, 3))
        << "no popup to open: the next word";
    Key(Qt::Key_F10);
    Key(Qt::Key_Q, Qt::ControlModifier);
    EXPECT_FALSE(handheld->Running());
}

// Around the ends; the panel's is the last one.
TEST_F(MenuBarKeys, ArrowsGoAroundTheButtonsThatCanBePressed) {
    const std::vector<std::string> expected = {"Main Menu",
                                               "Checks the puzzle",
                                               "Display a hint",
                                               "Select a new puzzle",
                                               "Open the clue list",
                                               "Puzzle magnification",
                                               "Toggle clues across / down",
                                               "Display Keyboard",
                                               "About Quadrel",
                                               "Keyboard"};
    Key(Qt::Key_F10);
    for (const std::string& button : expected) {
        EXPECT_EQ(FocusedButton(), button);
        Key(Qt::Key_Right);
    }
    EXPECT_EQ(FocusedButton(), "Main Menu");
    for (auto button = expected.rbegin(); button != expected.rend(); ++button) {
        Key(Qt::Key_Left);
        EXPECT_EQ(FocusedButton(), *button);
    }
}

TEST_F(MenuBarKeys, EnterPressesTheButtonAndGivesTheKeysBack) {
    Play(lopsidedBoard, smallSize);
    Key(Qt::Key_F10);
    for (int step = 0; step < 6; ++step) {
        Key(Qt::Key_Right);
    }
    Key(Qt::Key_Return);
    EXPECT_EQ(Direction, 1);
    EXPECT_EQ(FocusedButton(), "");
}

// What a menu bar's arrows do everywhere: the first item is selected, and beside the submenus they
// go on to the neighbouring popups, around the ends.
TEST_F(MenuBarKeys, ArrowsGoFromPopupToPopup) {
    QStringList selected;
    const NextMenu next([&selected](QMenu*) {
        for (int key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Left}) {
            auto* popup = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_NE(popup, nullptr);
            ASSERT_NE(popup->activeAction(), nullptr);
            selected << popup->activeAction()->text();
            SendKey(popup, key);
        }
    });
    Key(Qt::Key_F10);
    Key(Qt::Key_Down);
    EXPECT_EQ(selected,
              (QStringList{"Puzzles", "Small", "Puzzles", "Available", "Current Letter"}));
}

}  // namespace
