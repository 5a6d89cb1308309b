#include <gtest/gtest.h>

#include <random>
#include <tuple>

#include "support/played_board.h"

namespace {

class BoardTap : public PlayedBoard {};

using Selection = std::tuple<int, int, int>;

Selection Selected() {
    return {CursorRow, CursorCol, Direction};
}

// What a tap does, the slow way: every pixel belongs to a cell, or to none.
struct PlainTap {
    bool ignored = false;
    bool selects = false;
    Selection after = Selected();

    PlainTap(const BoardRows& rows, int x, int y) {
        const auto words = WordsOf(rows);
        const bool small = Magnification.Small == 1;
        const int edge = small ? BoardLeft + 1 : BoardLeft;
        ignored =
            y >= ViewHeight || (small && (x < edge || x >= BoardLeft + PuzzleWidth * CellSize ||
                                          y == 0 || y > PuzzleHeight * CellSize));
        for (int row = 0; row < PuzzleHeight; ++row) {
            for (int col = 0; col < PuzzleWidth; ++col) {
                const QRect cell(BoardLeft + col * CellSize - ScrollX, row * CellSize - ScrollY,
                                 CellSize, CellSize);
                if (!ignored && cell.contains(x, y)) {
                    Choose(words, row, col);
                }
            }
        }
    }

    // A selection may rest on a cell without both words after a word jump; tapping it still flips.
    void Choose(const std::vector<PlainWord>& words, int row, int col) {
        auto& [selectedRow, selectedCol, direction] = after;
        const bool again = row == selectedRow && col == selectedCol;
        direction = again ? 1 - direction : direction;
        selects = WordAt(words, row, col, 0).length > 1 && WordAt(words, row, col, 1).length > 1;
        if (selects) {
            after = {row, col, direction};
        }
    }
};

// Faults: an edge taken for the cell beside it, or for the board; the clue bar, too; x and y mixed
// up, the scroll left out, a black square selected, a direction that turns without a second tap, a
// highlight that stays after a tap on nothing.
TEST_F(BoardTap, AgreesWithLookingForTheCell) {
    for (unsigned seed = 1; seed <= 60; ++seed) {
        std::mt19937 random(seed);
        const auto below = [&random](int limit) {
            return static_cast<int>(random() % static_cast<unsigned>(limit));
        };
        const BoardRows rows = RandomBoard(random);
        SCOPED_TRACE("seed " + std::to_string(seed) + BoardText(rows));
        for (int tap = 0; tap < 12; ++tap) {
            Play(rows, sizes[seed % 3]);
            SelectCell(below(PuzzleHeight), below(PuzzleWidth), below(2));
            ScrollX = below(BufferWidth - ViewWidth + 1);
            RepaintFully(MainWindow);
            // Often on an outline or right beside it, or on the selected cell.
            const auto anyPlace = [&] { return POINT{below(240), below(268)}; };
            const auto nearOutline = [&] {
                return POINT{BoardLeft + below(PuzzleWidth + 1) * CellSize + below(3) - 1 - ScrollX,
                             below(PuzzleHeight + 1) * CellSize + below(3) - 1};
            };
            const POINT selected{BoardLeft + CursorCol * CellSize + 1 - ScrollX,
                                 CursorRow * CellSize + 1};
            const auto [x, y] = tap % 3 == 0 ? anyPlace() : tap % 3 == 1 ? nearOutline() : selected;
            if (x < 0 || x >= 240 || y < 0 || y >= 268) {
                continue;
            }
            SCOPED_TRACE(testing::Message() << "tap at " << x << ", " << y);
            const PlainTap expected(rows, x, y);
            const QImage screen = handheld->Client();
            handheld->Tap(x, y);
            ASSERT_EQ(Selected(), expected.after);
            const QImage shown = handheld->Client();
            if (expected.ignored) {
                ASSERT_EQ(shown, screen);
                continue;
            }
            (expected.selects ? RepaintFully : Repaint)(MainWindow);
            ASSERT_EQ(handheld->Client(), shown);
        }
    }
}

}  // namespace
