#include <gtest/gtest.h>

#include "board/board_picture.h"
#include "platform/drawing.h"
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

    // Wrong letters in the words that are peeked at, and beside them.
    void PlayWithLetters(MagnificationFlags size, int row, int col, int direction) {
        Play(lopsidedBoard, size);
        for (int cell : {22, 23, 24, 12, 18, 30}) {
            PlayerGrid[cell] = SolutionGrid[cell] == '.' ? '.' : 'W';
        }
        SelectCell(row, col, direction);
        RepaintFully(MainWindow);
        before = {PlayerLetters(), BelowBoard()};
    }

    void ExpectOnlyThePictureChanged() {
        EXPECT_EQ(PlayerLetters(), before.letters);
        EXPECT_EQ(ShowSolution, 0);
        EXPECT_EQ(BelowBoard(), before.clueBar);
        ExpectBufferOnScreen();
    }

    struct Before {
        std::string letters;
        QImage clueBar;
    };
    Before before;
};

bool IsSelected(int row, int col) {
    return row == CursorRow && col == CursorCol;
}

// The selected cell alone in its colour; text is left out where it may be.
template <typename HasText>
void ExpectSelectedCellAlone(const HasText& hasText) {
    const BoardPicture picture(lopsidedBoard);
    const QImage buffer = BufferImage();
    for (int y = 0; y < buffer.height(); ++y) {
        for (int x = 0; x < buffer.width(); ++x) {
            const bool inside = x > BoardLeft + CursorCol * CellSize &&
                                x < BoardLeft + (CursorCol + 1) * CellSize &&
                                y > CursorRow * CellSize && y < (CursorRow + 1) * CellSize;
            if (!picture.MayHoldInk(x, y, hasText)) {
                ASSERT_EQ(ColorAt(buffer, x, y), picture.At(x, y, inside)) << x << ", " << y;
            }
        }
    }
}

// Faults: the word is highlighted, too, a neighbour's solution shows, the player's letter is left,
// the letter is entered.
TEST_F(Hints, LetterHintsShowTheSelectedCellOnly) {
    for (MagnificationFlags size : sizes) {
        for (int direction : {0, 1}) {
            PlayWithLetters(size, 3, 2, direction);
            Show(letterHint);
            ExpectOnlyThePictureChanged();
            ExpectSelectedCellAlone([](int row, int col) {
                return IsSelected(row, col) || HasPlayersLetter(row, col);
            });
            ForEachCell([](int row, int col) {
                const auto ink = InkOfCell(lopsidedBoard, row, col, IsSelected(row, col));
                EXPECT_EQ(Any(ink, IsPureRed), IsSelected(row, col));
            });
            const auto ink = InkOfCell(lopsidedBoard, 3, 2, true);
            EXPECT_FALSE(Any(ink, IsDark)) << "the player's letter is covered";
        }
    }
}

TEST_F(Hints, WordHintsShowTheWholeWordInTheDirection) {
    for (MagnificationFlags size : sizes) {
        for (int direction : {0, 1}) {
            PlayWithLetters(size, 3, 1, direction);
            Show(wordHint);
            ExpectOnlyThePictureChanged();
            const BoardPicture picture(lopsidedBoard);
            ExpectPicture(lopsidedBoard, true, [&](int row, int col) {
                return picture.InSelectedWord(row, col) || HasPlayersLetter(row, col);
            });
            ForEachCell([&picture](int row, int col) {
                const auto ink = InkOfCell(lopsidedBoard, row, col, true);
                const bool inWord = picture.InSelectedWord(row, col);
                EXPECT_EQ(Any(ink, IsPureRed), inWord);
                EXPECT_EQ(Any(ink, IsDark), !inWord && HasPlayersLetter(row, col));
            });
        }
    }
}

TEST_F(Hints, PuzzleHintsShowEveryLetterWithoutAHighlight) {
    for (MagnificationFlags size : sizes) {
        PlayWithLetters(size, 3, 1, 1);
        Show(puzzleHint);
        ExpectOnlyThePictureChanged();
        const BoardPicture picture(lopsidedBoard);
        ExpectPicture(lopsidedBoard, false,
                      [&](int row, int col) { return picture.Cell(row, col) != '.'; });
        ForEachCell([&picture](int row, int col) {
            const auto ink = InkOfCell(lopsidedBoard, row, col, false);
            EXPECT_EQ(Any(ink, IsPureRed), picture.Cell(row, col) != '.');
            EXPECT_FALSE(Any(ink, IsDark));
        });
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

// Faults: numbers in Small or although they are switched off, red ones, ones that the letters or
// the highlight of later cells cover.
TEST_F(Hints, NumbersAreBlackInTheLargerSizesOnly) {
    for (MagnificationFlags size : sizes) {
        for (int shown : {0, 1}) {
            ShowNumbers = shown;
            for (const char* hint : {letterHint, wordHint, puzzleHint}) {
                Play(lopsidedBoard, size);
                SelectCell(3, 2, 0);
                Show(hint);
                ForEachCell([hint](int row, int col) {
                    const bool plain =
                        hint == puzzleHint || (hint == letterHint && !IsSelected(row, col));
                    const auto ink = InkOfCell(lopsidedBoard, row, col, !plain);
                    EXPECT_EQ(Any(ink, IsDark), HasNumber(row, col)) << hint;
                });
            }
        }
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

// Everything below the board is painted anew, whatever was there.
TEST_F(Hints, PaintTheClueBarAndTheKeyboard) {
    Play(lopsidedBoard, largeSize);
    EXPECT_TRUE(handheld->PressButton("Display Keyboard"));
    const QImage below = BelowBoard();
    for (const char* hint : {letterHint, wordHint, puzzleHint}) {
        HDC context = GetDC(MainWindow);
        PatBlt(context, 0, ViewHeight, 240, 65, WHITENESS);
        ReleaseDC(MainWindow, context);
        Show(hint);
        EXPECT_EQ(BelowBoard(), below) << hint;
    }
}

}  // namespace
