#include <gtest/gtest.h>

#include "board/board_picture.h"

namespace {

struct Selection {
    int row;
    int col;
    int direction;
    bool operator==(const Selection&) const = default;
};

class BoardTap : public PlayedBoard {
protected:
    static Selection Selected() {
        return {CursorRow, CursorCol, Direction};
    }
    // On the screen, not only in the buffer.
    bool HighlightShown() {
        const QImage client = handheld->Client();
        for (int y = 0; y < ViewHeight; ++y) {
            for (int x = 0; x < ViewWidth; ++x) {
                if (ColorAt(client, x, y) == SelectedCellColor) {
                    return true;
                }
            }
        }
        return false;
    }
    void ExpectNothingSelectedAt(int x, int y) {
        const Selection before = Selected();
        handheld->Tap(x, y);
        EXPECT_EQ(Selected(), before) << x << ", " << y;
        EXPECT_FALSE(HighlightShown()) << x << ", " << y;
    }
    void ExpectTapIgnored(int x, int y) {
        const Selection before = Selected();
        const QImage screen = handheld->Client();
        handheld->Tap(x, y);
        EXPECT_EQ(Selected(), before) << x << ", " << y;
        EXPECT_EQ(handheld->Client(), screen) << x << ", " << y;
    }
};

TEST_F(BoardTap, SelectsACellAndOnlyASecondTapFlipsTheDirection) {
    Play(lopsidedBoard, smallSize);
    handheld->TapCell(3, 5);
    EXPECT_EQ(Selected(), (Selection{3, 5, 0}));
    ExpectPicture(lopsidedBoard, true);
    handheld->TapCell(3, 5);
    EXPECT_EQ(Selected(), (Selection{3, 5, 1}));
    ExpectPicture(lopsidedBoard, true);
    handheld->TapCell(1, 3);
    EXPECT_EQ(Selected(), (Selection{1, 3, 1}));
    handheld->TapCell(1, 3);
    EXPECT_EQ(Selected(), (Selection{1, 3, 0}));
}

TEST_F(BoardTap, BlackSquaresAndCellsWithoutBothWordsSelectNothingAndShowNoHighlight) {
    for (MagnificationFlags size : {smallSize, mediumSize, largeSize}) {
        Play(lopsidedBoard, size);
        const POINT cells[] = {{2, 0}, {1, 2}, {2, 1}, {0, 2}};  // column, row: two of each kind
        for (POINT cell : cells) {
            handheld->TapCell(0, 5);
            Direction = 0;
            handheld->TapCell(cell.y, cell.x);
            EXPECT_EQ(Selected(), (Selection{0, 5, 0})) << cell.y << ", " << cell.x;
            EXPECT_FALSE(HighlightShown());
            ExpectPicture(lopsidedBoard, false);
        }
    }
}

// A selection may rest on a cell without both words after a word jump; tapping it still flips.
TEST_F(BoardTap, TheSelectedCellFlipsEvenWhereItCannotBeSelected) {
    Play(lopsidedBoard, smallSize);
    SelectCell(1, 2, 0);
    handheld->TapCell(1, 2);
    EXPECT_EQ(Selected(), (Selection{1, 2, 1}));
    EXPECT_FALSE(HighlightShown());
}

// Faults: an edge taken for the cell beside it, or for the board; x and y mixed up.
TEST_F(BoardTap, SmallBoardsEndAtTheirOutlines) {
    Play({"ABCDE", "FG.HI", "JKLMN", "OPQRS", "T.UVW", "XYZAB", "CDEFG"}, smallSize);
    ASSERT_EQ(CellSize, 35);
    ASSERT_EQ(BoardLeft, 32);
    const int right = BoardLeft + 5 * CellSize;
    const int bottom = 7 * CellSize;
    handheld->TapCell(2, 2);
    ExpectTapIgnored(BoardLeft, 50);
    ExpectTapIgnored(right, 50);
    ExpectTapIgnored(BoardLeft + 5, 0);
    ExpectTapIgnored(BoardLeft + 5, bottom + 1);
    ExpectTapIgnored(5, 50);
    handheld->Tap(BoardLeft + 1, 1);
    EXPECT_EQ(Selected(), (Selection{0, 0, 0}));
    handheld->Tap(right - 1, bottom - 1);
    EXPECT_EQ(Selected(), (Selection{6, 4, 0}));
    ExpectNothingSelectedAt(BoardLeft + 5, bottom);
}

TEST_F(BoardTap, MarginsOfLargerBoardsSelectNothing) {
    for (MagnificationFlags size : {mediumSize, largeSize}) {
        Play(lopsidedBoard, size);
        const int right = BoardLeft + 7 * CellSize;
        const int bottom = 5 * CellSize;
        // The third row is followed by a cell that could be selected.
        const POINT margins[] = {
            {BoardLeft - 1, 30}, {right, 2 * CellSize + 5}, {BoardLeft + 30, bottom}};
        for (POINT margin : margins) {
            handheld->TapCell(3, 5);
            ExpectNothingSelectedAt(margin.x, margin.y);
        }
        handheld->Tap(BoardLeft, 3 * CellSize);
        EXPECT_EQ(CursorRow, 3);
        EXPECT_EQ(CursorCol, 0);
    }
}

TEST_F(BoardTap, TheClueBarIsNoPartOfTheBoard) {
    Play(BoardRows(20, std::string(20, 'A')), largeSize);
    handheld->TapCell(3, 3);
    ExpectTapIgnored(80, 248);
    handheld->Tap(80, 247);
    EXPECT_EQ(CursorRow, 10);
}

TEST_F(BoardTap, FindsTheCellUnderTheStylusOnAScrolledBoard) {
    Play(BoardRows(20, std::string(17, 'A')), mediumSize);
    ScrollX = 63;
    ScrollY = 29;
    const int x = 33;
    const int y = 101;
    const Selection expected{(y + ScrollY) / 20, (x + ScrollX) / 20, Direction};
    handheld->Tap(x, y);
    EXPECT_EQ(Selected(), expected);
}

}  // namespace
