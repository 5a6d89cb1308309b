#include <gtest/gtest.h>

#include <random>

#include "board/board_picture.h"

namespace {

struct Selection {
    int row;
    int col;
    int direction;
    bool operator==(const Selection&) const = default;
};

void PrintTo(const Selection& selection, std::ostream* out) {
    *out << selection.row << ", " << selection.col << " direction " << selection.direction;
}

class BoardTap : public PlayedBoard {
protected:
    static Selection Selected() {
        return {CursorRow, CursorCol, Direction};
    }
    // On the screen, not only in the buffer.
    bool HighlightShown() {
        return Any(AllPixels(handheld->Client().copy(0, 0, ViewWidth, ViewHeight)),
                   [](COLORREF color) { return color == SelectedCellColor; });
    }
};

TEST_F(BoardTap, SelectsACellAndOnlyASecondTapFlipsTheDirection) {
    Play(lopsidedBoard, smallSize);
    for (const Selection& expected : {Selection{3, 5, 0}, {3, 5, 1}, {1, 3, 1}, {1, 3, 0}}) {
        handheld->TapCell(expected.row, expected.col);
        EXPECT_EQ(Selected(), expected);
        ExpectPicture(lopsidedBoard, true);
    }
}

// What a tap does, the slow way: every pixel belongs to a cell, or to none.
struct PlainTap {
    bool ignored = false;
    bool selects = false;
    Selection after = {CursorRow, CursorCol, Direction};

    PlainTap(const BoardRows& rows, int x, int y) {
        const auto words = WordsOf(rows);
        const bool small = Magnification.Small == 1;
        const int edge = small ? BoardLeft + 1 : BoardLeft;
        ignored = small && (x < edge || x >= BoardLeft + PuzzleWidth * CellSize || y == 0 ||
                            y > PuzzleHeight * CellSize);
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
        const bool again = row == after.row && col == after.col;
        after.direction = again ? 1 - after.direction : after.direction;
        selects = WordAt(words, row, col, 0).length > 1 && WordAt(words, row, col, 1).length > 1;
        if (selects) {
            after = {row, col, after.direction};
        }
    }
};

// Faults: an edge taken for the cell beside it, or for the board; x and y mixed up, the scroll left
// out, a black square selected, a highlight that stays after a tap on nothing.
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
            // Often on an outline or right beside it, and on the selected cell.
            const bool near = below(2) == 0;
            const int x =
                near ? BoardLeft + below(PuzzleWidth + 1) * CellSize + below(3) - 1 - ScrollX
                     : below(240);
            const int y = near ? below(PuzzleHeight + 1) * CellSize + below(3) - 1 : below(248);
            if (x < 0 || x >= 240 || y < 0 || y >= ViewHeight) {
                continue;
            }
            SCOPED_TRACE(testing::Message() << "tap at " << x << ", " << y);
            const PlainTap expected(rows, x, y);
            const QImage screen = handheld->Client();
            handheld->Tap(x, y);
            ASSERT_EQ(Selected(), expected.after);
            if (expected.ignored) {
                ASSERT_EQ(handheld->Client(), screen);
            } else {
                ASSERT_EQ(HighlightShown(), expected.selects);
            }
        }
    }
}

TEST_F(BoardTap, TheClueBarIsNoPartOfTheBoard) {
    Play(BoardRows(20, std::string(20, 'A')), largeSize);
    handheld->TapCell(3, 3);
    handheld->Tap(80, 248);
    EXPECT_EQ(CursorRow, 3);
    handheld->Tap(80, 247);
    EXPECT_EQ(CursorRow, 10);
}

}  // namespace
