#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <random>

#include "app/drag_scroll.h"
#include "platform/windows.h"
#include "support/played_board.h"

namespace {

BoardRows SquareBoard(int side) {
    BoardRows rows(static_cast<std::size_t>(side),
                   std::string(static_cast<std::size_t>(side), 'A'));
    rows.back()[0] = '.';
    return rows;
}

class Layout : public PlayedBoard {
protected:
    void ExpectBoardToFit(int side, int viewHeight) {
        EXPECT_GE(CellSize, 1);
        EXPECT_LE(side * CellSize, 240);
        EXPECT_LE(side * CellSize, viewHeight);
        EXPECT_TRUE(side * (CellSize + 1) > 240 || side * (CellSize + 1) > viewHeight);
    }
    void ExpectSoundLayout(int side, int clientHeight) {
        EXPECT_EQ(ViewWidth, 240);
        EXPECT_EQ(ViewHeight, clientHeight - 20);
        EXPECT_EQ(std::pair(ScrollX, ScrollY), std::pair(0, 0));
        const int right = 240 - BoardLeft - side * CellSize;
        EXPECT_LE(std::abs(right - BoardLeft), side * CellSize <= 240 ? 1 : 1000);
        EXPECT_GE(BoardLeft, 0);
        // A buffer that is too short or too narrow can never show the last row or column.
        EXPECT_GE(BufferWidth, std::max(ViewWidth, side * CellSize));
        EXPECT_GE(BufferHeight, std::max(ViewHeight, side * CellSize));
        EXPECT_EQ(BufferImage().size(), QSize(BufferWidth, BufferHeight));
    }
};

TEST_F(Layout, FitsSmallBoardsAndFixesTheLargerCellsForEverySide) {
    for (bool panelUp : {false, true}) {
        if (panelUp) {
            handheld->PressPanelButton();
        }
        const int clientHeight = panelUp ? 188 : 268;
        for (MagnificationFlags size : sizes) {
            for (int side = 5; side <= 40; ++side) {
                SCOPED_TRACE(side);
                Play(SquareBoard(side), size);
                ExpectSoundLayout(side, clientHeight);
                if (size.Small == 1) {
                    ExpectBoardToFit(side, clientHeight - 20);
                } else {
                    EXPECT_EQ(CellSize, size.Medium == 1 ? 20 : 24);
                }
            }
        }
    }
}

// The slow way to drag: one pen, one board, and a move that would pass a limit does not happen.
struct PlainDrag {
    int scrollX = 0;
    int scrollY = 0;
    int mostX = 0;
    int mostY = 0;
    bool scrolls = false;
    int viewHeight = 0;
    POINT last;

    void Move(POINT pen) {
        if (!scrolls || pen.x < 0 || pen.x >= 240 || pen.y < 0 || pen.y >= viewHeight) {
            return;
        }
        Along(scrollX, last.x - pen.x, mostX);
        Along(scrollY, last.y - pen.y, mostY);
        last = pen;
    }
    static void Along(int& scroll, int move, int most) {
        const int wanted = scroll + move;
        if ((move > 0 && wanted <= most) || (move < 0 && wanted >= 0)) {
            scroll = wanted;
        }
    }
};

class Dragging : public PlayedBoard {
protected:
    void DragAtRandom(std::mt19937& random, PlainDrag& plain) {
        handheld->PutDown({120, 100});
        plain.last = {120, 100};
        for (int move = 0; move < 25; ++move) {
            // The first move is no trembling; some leave the view, and some the window.
            const POINT pen = move == 0 ? POINT{100, 80}
                                        : POINT{static_cast<LONG>(random() % 280) - 20,
                                                static_cast<LONG>(random() % 300) - 20};
            handheld->MoveTo(pen);
            plain.Move(pen);
            ASSERT_EQ(std::pair(ScrollX, ScrollY), std::pair(plain.scrollX, plain.scrollY))
                << "move " << move;
        }
        // Outside of the view, so that the release selects nothing.
        handheld->LiftAt({120, 290});
    }
};

// Above the raised panel, too, where a board that fitted before has lower rows to reach.
TEST_F(Dragging, FollowsTheStylusWithinTheBoard) {
    for (unsigned seed = 1; seed <= 36; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        const int side = 8 + static_cast<int>(random() % 14);
        const MagnificationFlags size = sizes[seed % 3];
        Play(SquareBoard(side), size);
        const bool panelUp = seed % 2 == 0;
        if (panelUp) {
            handheld->PressPanelButton();
            ScrollY = 0;
        }
        const int board = side * CellSize + 1;
        PlainDrag plain;
        plain.viewHeight = panelUp ? 168 : 248;
        plain.scrolls = size.Small == 0 && (board - 1 > 240 || board - 1 > plain.viewHeight);
        plain.mostX = std::max(board - 240, 0);
        plain.mostY = std::max(board - plain.viewHeight, 0);
        DragAtRandom(random, plain);
        if (panelUp) {
            handheld->PressPanelButton();
        }
    }
}

TEST_F(Dragging, EndsWithATapUnderTheStylus) {
    Play(SquareBoard(20), mediumSize);
    handheld->Drag({200, 200}, {150, 150});
    EXPECT_EQ(std::pair(CursorRow, CursorCol), std::pair((150 + 50) / 20, (150 + 50) / 20));
}

}  // namespace
