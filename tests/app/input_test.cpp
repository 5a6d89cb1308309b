#include <gtest/gtest.h>

#include <QtCore/QTimer>
#include <chrono>

#include "platform/qt/host/host_window.h"
#include "support/played_board.h"

namespace {

class Input : public PlayedBoard {
protected:
    Input() {
        Play(lopsidedBoard, smallSize);
    }
    // Of the one in row 3 and column 5.
    static POINT MiddleOfTheCell() {
        return {BoardLeft + 5 * CellSize + 8, 3 * CellSize + 8};
    }
    std::string FirstLetters() {
        return PlayerLetters().substr(0, 2);
    }
};

TEST_F(Input, LettersOfEveryKindTypeLetters) {
    handheld->Press('a');
    handheld->Press('B', Qt::ShiftModifier);
    EXPECT_EQ(FirstLetters(), "AB");
    SelectCell(0, 0, 0);
    handheld->Commit(QString::fromUtf8("çÜ"));
    EXPECT_EQ(FirstLetters(), "CU");
    SelectCell(0, 0, 0);
    handheld->Commit(QString::fromUtf8("n1!ñ"));
    EXPECT_EQ(FirstLetters(), "NN");
    handheld->Commit(QString::fromUtf8("中\n"));
    EXPECT_EQ(Direction, 1) << "a line end of an input method is the Enter key";
    EXPECT_EQ(FirstLetters(), "NN");
}

// Ctrl alone makes a command, and only of some letters.
TEST_F(Input, KeysHeldWithCtrlOrAltNeitherTypeNorMove) {
    const std::string before = PlayerLetters();
    const QImage screen = handheld->Client();
    for (char key = 'A'; key <= 'Z'; ++key) {
        if (key != 'Q') {
            handheld->Press(key, Qt::ControlModifier);
        }
        for (const auto modifiers :
             {Qt::KeyboardModifiers(Qt::AltModifier), Qt::ControlModifier | Qt::ShiftModifier,
              Qt::ControlModifier | Qt::AltModifier}) {
            handheld->Press(key, modifiers);
            ASSERT_TRUE(handheld->Running()) << key;
        }
    }
    handheld->Press(Qt::Key_Return, Qt::ControlModifier);
    handheld->Press(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(PlayerLetters(), before);
    EXPECT_EQ(std::pair(CursorCol, Direction), std::pair(0, 0));
    EXPECT_EQ(handheld->Client(), screen);
}

TEST_F(Input, TheSecondTapOfAQuickPairCounts) {
    handheld->DoubleTapCell(3, 5);
    EXPECT_EQ(std::tuple(CursorRow, CursorCol, Direction), std::tuple(3, 5, 1));
}

// Faults: the hold flips the direction, its release counts as a tap, the next tap is lost.
TEST_F(Input, HoldingSelectsAndItsReleaseDoesNothing) {
    handheld->TapCell(3, 5);
    const auto [x, y] = MiddleOfTheCell();
    const auto start = std::chrono::steady_clock::now();
    TakeOpenedMenus();
    handheld->Hold(x, y);
    const auto held = std::chrono::steady_clock::now() - start;
    EXPECT_GE(held, std::chrono::milliseconds(590));
    EXPECT_EQ(Direction, 0);
    EXPECT_EQ(TapHoldActive, 0);
    EXPECT_EQ(TakeOpenedMenus(), 1);
    handheld->TapCell(3, 5);
    EXPECT_EQ(Direction, 1);
    EXPECT_EQ(TakeOpenedMenus(), 0);
}

// Faults: the end waits behind the menu that the hold opens, or is forgotten.
TEST_F(Input, AskedToEndDuringAHoldTheProgramEnds) {
    TakeOpenedMenus();
    handheld->PutDown({100, 100});
    QTimer::singleShot(50, [] { Host().close(); });
    handheld->Settle();
    EXPECT_FALSE(handheld->Running());
    EXPECT_EQ(TakeOpenedMenus(), 0);
}

TEST_F(Input, ATremblingHandHoldsOrTapsAndAMovingOneDrags) {
    Play(BoardRows(20, std::string(20, 'A')), mediumSize);
    handheld->Tap(100, 100);
    handheld->PutDown({100, 100});
    handheld->MoveTo({97, 98});
    handheld->LiftAt({98, 100});
    EXPECT_EQ(std::pair(Direction, ScrollX), std::pair(0, 0)) << "a hold";

    handheld->PutDown({100, 100});
    handheld->MoveTo({91, 100});
    handheld->MoveTo({97, 100});
    handheld->LiftAt({97, 100});
    EXPECT_EQ(std::pair(Direction, ScrollX), std::pair(1, 3)) << "a release after a drag is a tap";
}

TEST_F(Input, RightClickSelectsAtOnceWithoutFlipping) {
    handheld->TapCell(3, 5);
    const POINT point = MiddleOfTheCell();
    const auto start = std::chrono::steady_clock::now();
    handheld->RightClick(point.x, point.y);
    EXPECT_EQ(std::pair(CursorCol, Direction), std::pair(5, 0));
    handheld->RightClick(100, 255);
    EXPECT_EQ(CursorCol, 5) << "the clue bar selects nothing";
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(500));
}

TEST_F(Input, SoftInputPanelTypesIntoTheBoard) {
    handheld->PressPanelButton();
    handheld->TapPanel(12 + 4 * 18 + 9, 24);  // T
    handheld->TapPanel(10, 56);               // Shift
    handheld->TapPanel(30 + 5 * 18 + 9, 56);  // N
    EXPECT_EQ(FirstLetters(), "TN");
    handheld->TapPanel(228, 8);  // Backspace
    EXPECT_EQ(FirstLetters(), "T-");
    handheld->TapPanel(228, 40);  // Enter
    EXPECT_EQ(Direction, 1);
    handheld->TapPanel(231, 72);  // right
    EXPECT_NE(CursorCol, 0);
    handheld->TapPanel(9, 8);  // a digit
    EXPECT_EQ(PlayerLetters().find('1'), std::string::npos);
}

// The stylus means the same logical pixel however large the host's window is.
TEST_F(Input, TapsFindTheirCellAtEveryMagnification) {
    for (double magnification : {1.37, 2.5, 3.0}) {
        handheld->Resize(magnification);
        for (int row : {0, 3}) {
            SelectCell(4, 4, 0);
            handheld->TapCell(row, 6);
            EXPECT_EQ(std::pair(CursorRow, CursorCol), std::pair(row, 6)) << magnification;
        }
    }
}

}  // namespace
