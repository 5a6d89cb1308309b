#include <gtest/gtest.h>

#include <random>

#include "board/board_picture.h"

namespace {

const ShownMessage nothingToCheck{
    u"This button will check puzzle for errors. You've have not yet started the puzzle, so there "
    u"is nothing to check.",
    u"Puzzle Checker"};
const ShownMessage nothingWrong{u"All the letters entered so far are correct.", u"Nothing Wrong"};

class Checker : public PlayedBoard {
protected:
    void Check() {
        EXPECT_TRUE(handheld->PressButton("Checks the puzzle"));
    }

    // Right, wrong and empty cells all over the board.
    static void EnterMixedLetters() {
        std::mt19937 random(11);
        for (int cell = 0; cell < PuzzleWidth * PuzzleHeight; ++cell) {
            const auto what = random() % 3;
            if (SolutionGrid[cell] != '.' && what > 0) {
                const char wrong = SolutionGrid[cell] == 'W' ? 'M' : 'W';
                PlayerGrid[cell] = what == 1 ? wrong : SolutionGrid[cell];
            }
        }
    }

    // The board that the checker paints has neither bevels nor a highlight.
    static COLORREF PlainColor(const BoardPicture& picture, int x, int y) {
        const COLORREF color = picture.At(x, y, false);
        return color == RGB(192, 192, 192) ? BackgroundColor : color;
    }

    static std::vector<COLORREF> Ink(const BoardPicture& picture, const QImage& buffer, int row,
                                     int col) {
        std::vector<COLORREF> ink;
        for (int y = row * CellSize; y <= (row + 1) * CellSize; ++y) {
            for (int x = BoardLeft + col * CellSize; x <= BoardLeft + (col + 1) * CellSize; ++x) {
                const COLORREF color = ColorAt(buffer, x, y);
                if (color != PlainColor(picture, x, y)) {
                    ink.push_back(color);
                }
            }
        }
        return ink;
    }

    static void ExpectMarkedLetters() {
        const BoardPicture picture(lopsidedBoard);
        const QImage buffer = BufferImage();
        ForEachCell([&](int row, int col) {
            const int cell = row * PuzzleWidth + col;
            const auto ink = Ink(picture, buffer, row, col);
            const bool entered = HasPlayersLetter(row, col);
            const bool wrong = entered && PlayerGrid[cell] != SolutionGrid[cell];
            EXPECT_EQ(Any(ink, IsPureRed), wrong);
            EXPECT_EQ(Any(ink, IsDark), (entered && !wrong) || HasNumber(row, col));
            EXPECT_EQ(ink.empty(), !entered && !HasNumber(row, col));
        });
        EXPECT_EQ(ColorAt(buffer, 0, 0), PlainColor(picture, 0, 0));
        EXPECT_EQ(ColorAt(buffer, 239, 247), RGB(255, 255, 255));
    }
};

// Faults: red for right letters or black for wrong ones, an empty cell marked, numbers in Small or
// although they are switched off, the two fills exchanged, outlines that are not shared, a grid
// changed, red that stays after the next tap or key.
TEST_F(Checker, WrongLettersAreRedUntilTheNextTapOrKey) {
    SquareColor = RGB(10, 90, 40);
    for (MagnificationFlags size : sizes) {
        for (int shown : {0, 1}) {
            ShowNumbers = shown;
            Play(lopsidedBoard, size);
            EnterMixedLetters();
            const std::string letters = PlayerLetters();
            Check();
            ExpectMarkedLetters();
            EXPECT_TRUE(Any(AllPixels(handheld->Client()), IsPureRed));
            const bool byKey = shown == 1;
            if (byKey) {
                handheld->Press(Qt::Key_Return);
            } else {
                handheld->TapCell(3, 5);
            }
            EXPECT_FALSE(Any(AllPixels(handheld->Client()), IsPureRed));
            EXPECT_EQ(PlayerLetters(), letters);
        }
    }
}

TEST_F(Checker, AnswersWhenNothingIsEnteredOrNothingIsWrong) {
    Play(lopsidedBoard, smallSize);
    const auto answer = [this] {
        Check();
        return TakeShownMessages();
    };
    const std::vector<ShownMessage> silence;
    EXPECT_EQ(answer(), std::vector{nothingToCheck});
    PlayerGrid[4 * 7 + 1] = 'A';
    EXPECT_EQ(answer(), std::vector{nothingWrong});
    PlayerGrid[6] = 'G';
    EXPECT_EQ(answer(), silence);
    PlayerGrid[4 * 7 + 1] = '-';
    EXPECT_EQ(answer(), silence) << "wrong letters only";
    std::copy_n(SolutionGrid, PuzzleWidth * PuzzleHeight, PlayerGrid);
    EXPECT_EQ(answer(), std::vector{nothingWrong});
}

}  // namespace
