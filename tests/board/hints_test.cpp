#include <gtest/gtest.h>

#include "board/board_picture.h"
#include "support/menus.h"

namespace {

constexpr const char* letterHint = "Current Letter";
constexpr const char* wordHint = "Current Word";
constexpr const char* puzzleHint = "Entire Puzzle";

class Hints : public PlayedBoard {
protected:
    void Show(const char* hint) {
        EXPECT_TRUE(ChooseFromBar(*handheld, "Display a hint", {hint})) << hint;
    }
    // By holding the stylus there, while another cell is selected.
    void ShowForCell(int row, int col, const char* hint) {
        SelectCell(0, 0, Direction);
        const POINT point{BoardLeft + col * CellSize + 6, row * CellSize + 6};
        const char* scope = hint == letterHint ? "Letter" : hint == wordHint ? "Word" : "Puzzle";
        EXPECT_TRUE(ChooseFromContext(*handheld, point, {"View", scope}));
    }

    // Wrong letters in the words that are peeked at, and beside them.
    void PlayWithLetters(MagnificationFlags size, int row, int col, int direction) {
        Play(lopsidedBoard, size);
        for (int cell : {22, 23, 24, 12, 18, 30}) {
            PlayerGrid[cell] = SolutionGrid[cell] == '.' ? '.' : 'W';
        }
        SelectCell(row, col, direction);
        RepaintFully(MainWindow);
    }
};

// What a hint must look like: the cells whose solution it shows, and those that are highlighted.
struct PlainHint {
    const char* hint;
    BoardPicture picture{lopsidedBoard};

    static bool IsSelected(int row, int col) {
        return row == CursorRow && col == CursorCol;
    }
    bool Reveals(int row, int col) const {
        if (hint == puzzleHint) {
            return picture.Cell(row, col) != '.';
        }
        return hint == letterHint ? IsSelected(row, col) : picture.InSelectedWord(row, col);
    }
    bool Highlights(int row, int col) const {
        return hint == wordHint || (hint == letterHint && IsSelected(row, col));
    }

    void ExpectCells() const {
        ForEachCell([this](int row, int col) {
            const auto ink = InkOfCell(lopsidedBoard, row, col, Highlights(row, col));
            const bool keepsLetter = HasPlayersLetter(row, col) && !Reveals(row, col);
            EXPECT_EQ(Any(ink, IsPureRed), Reveals(row, col));
            EXPECT_EQ(Any(ink, IsDark), keepsLetter || HasNumber(row, col));
        });
    }
    void ExpectRest() const {
        ExpectPicture(
            lopsidedBoard, [this](int row, int col) { return Highlights(row, col); },
            [this](int row, int col) {
                return Reveals(row, col) || HasPlayersLetter(row, col) || HasNumber(row, col);
            });
    }
};

// Faults: another highlight than the hint's, a neighbour's solution shows, the player's letter is
// left or the solution entered, numbers in Small or although they are switched off, red ones, ones
// that the letters or the highlight of later cells cover.
TEST_F(Hints, ShowTheirSolutionsInRedAndChangeNothingElse) {
    for (MagnificationFlags size : sizes) {
        for (const char* hint : {letterHint, wordHint, puzzleHint}) {
            for (int variant = 0; variant < 8; ++variant) {
                SCOPED_TRACE(testing::Message() << hint << ", variant " << variant);
                const int direction = variant % 2;
                ShowNumbers = variant / 2 % 2;
                // Once a cell that has a number, and once one that has none.
                PlayWithLetters(size, 3, 2 - direction, direction);
                const std::string letters = PlayerLetters();
                if (variant < 4) {
                    Show(hint);
                } else {
                    ShowForCell(CursorRow, CursorCol, hint);
                }
                EXPECT_EQ(PlayerLetters(), letters);
                EXPECT_EQ(ShowSolution, 0);
                const PlainHint expected{hint};
                expected.ExpectCells();
                expected.ExpectRest();
            }
        }
    }
}

TEST_F(Hints, AreGoneAfterTheNextTapOrKey) {
    for (const char* hint : {letterHint, wordHint, puzzleHint}) {
        for (bool byKey : {false, true}) {
            PlayWithLetters(mediumSize, 3, 1, 0);
            Show(hint);
            EXPECT_TRUE(Any(AllPixels(handheld->Client()), IsPureRed));
            if (byKey) {
                handheld->Press('K');
                EXPECT_EQ(PlayerGrid[3 * 7 + 1], 'K');
            } else {
                handheld->TapCell(3, 5);
            }
            EXPECT_FALSE(Any(AllPixels(handheld->Client()), IsPureRed)) << hint;
        }
    }
}

// A puzzle may select its black top-left square, which belongs to no word.
TEST_F(Hints, ABlackSquareHasNoLetterToShow) {
    for (const char* hint : {letterHint, wordHint}) {
        Play(lopsidedBoard, mediumSize);
        SelectCell(2, 2, 1);
        Show(hint);
        ExpectPicture(lopsidedBoard, true);
        EXPECT_EQ(PlayerGrid[2 * 7 + 2], '.');
    }
}

// A number of many digits must not run over the neighbour, which is not painted after it.
TEST_F(Hints, TheNumberOfALetterHintStaysInItsCell) {
    ShowNumbers = 1;
    for (MagnificationFlags size : {mediumSize, largeSize}) {
        Play({"AB", "CD"}, size);
        Cells[0].clueNumber = 1888888888;
        PaintBoard(MainWindow);
        const QImage board = BufferImage();
        Show(letterHint);
        const QImage hint = BufferImage();
        const int right = BoardLeft + CellSize;
        EXPECT_TRUE(Any(InkOfCell({"AB", "CD"}, 0, 0, true), IsDark));
        const QImage neighbour = hint.copy(right, 0, CellSize, CellSize);
        EXPECT_EQ(neighbour, board.copy(right, 0, CellSize, CellSize));
    }
}

}  // namespace
