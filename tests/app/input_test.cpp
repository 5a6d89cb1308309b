#include "support/played_board.h"

namespace {

class Input : public PlayedBoard {
protected:
    Input() {
        Play(BoardRows(20, std::string(20, 'A')), mediumSize);
    }
};

TEST_F(Input, LettersOfEveryKindTypeLetters) {
    handheld->Press('B', Qt::ShiftModifier);
    handheld->Commit(QString::fromUtf8("çn1!ñ中"));
    EXPECT_EQ(PlayerLetters().substr(0, 6), "BCNN--");
    handheld->Commit("\n");
    EXPECT_EQ(Direction, 1) << "a line end of an input method is the Enter key";
}

// Faults: the hold or its release flips the direction, the next tap is lost or still a hold.
TEST_F(Input, ATremblingHandHoldsAndAMovingOneDrags) {
    handheld->TapCell(3, 5);
    TakeOpenedMenus();
    handheld->PutDown({110, 70});
    handheld->MoveTo({106, 74});
    handheld->LiftAt({108, 70});
    EXPECT_EQ(std::tuple(CursorRow, CursorCol, Direction), std::tuple(3, 5, 0));
    EXPECT_EQ(TakeOpenedMenus(), 1);
    handheld->PutDown({110, 70});
    handheld->MoveTo({101, 70});
    handheld->MoveTo({107, 70});
    handheld->LiftAt({107, 70});
    EXPECT_EQ(std::pair(TakeOpenedMenus(), ScrollX), std::pair(0, 3));
    EXPECT_EQ(Direction, 1) << "a release after a drag is a tap";
    handheld->TapCell(3, 5);
    SendMouse(QEvent::MouseButtonDblClick, {107, 70});
    handheld->LiftAt({107, 70});
    EXPECT_EQ(Direction, 1) << "both taps of a quick pair count";
}

// Faults: the end waits behind the menu that the hold opens, or is forgotten; the release that the
// window has not seen is taken for that of the next tap.
TEST_F(Input, AskedToEndDuringAHoldTheProgramEnds) {
    TakeOpenedMenus();
    handheld->PutDown({100, 100});
    QTimer::singleShot(0, [] { Host().close(); });
    handheld->Settle();
    EXPECT_FALSE(handheld->Running());
    EXPECT_EQ(TakeOpenedMenus(), 0);
    Restart();
    handheld->TapCell(0, 2);
    EXPECT_EQ(CursorCol, 2);
}

}  // namespace
