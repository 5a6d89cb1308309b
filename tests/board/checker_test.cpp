#include <gtest/gtest.h>

#include <algorithm>

#include "board/board_picture.h"
#include "support/menus.h"

namespace {

constexpr MagnificationFlags sizes[] = {smallSize, mediumSize, largeSize};

constexpr const char* checkButton = "Checks the puzzle";

const ShownMessage nothingToCheck{
    u"This button will check puzzle for errors. You've have not yet started the puzzle, so there "
    u"is nothing to check.",
    u"Puzzle Checker"};
const ShownMessage nothingWrong{u"All the letters entered so far are correct.", u"Nothing Wrong"};

bool IsPureRed(COLORREF color) {
    return color == RGB(255, 0, 0);
}

bool IsRed(COLORREF color) {
    return GetRValue(color) == 255 && GetGValue(color) == GetBValue(color) &&
           GetGValue(color) < 255;
}

bool IsDark(COLORREF color) {
    return GetRValue(color) < 100;
}

template <typename Test>
bool Any(const std::vector<COLORREF>& colors, const Test& test) {
    return std::any_of(colors.begin(), colors.end(), test);
}

std::vector<COLORREF> AllPixels(const QImage& image) {
    std::vector<COLORREF> pixels;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            pixels.push_back(ColorAt(image, x, y));
        }
    }
    return pixels;
}

class Checker : public PlayedBoard {
protected:
    void Check() {
        EXPECT_TRUE(handheld->PressButton(checkButton));
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
        for (int cell = 0; cell < PuzzleWidth * PuzzleHeight; ++cell) {
            const auto ink = Ink(picture, buffer, cell / PuzzleWidth, cell % PuzzleWidth);
            const bool holdsLetter = PlayerGrid[cell] != '-' && PlayerGrid[cell] != '.';
            const bool wrong = holdsLetter && PlayerGrid[cell] != SolutionGrid[cell];
            EXPECT_EQ(Any(ink, IsPureRed), wrong) << "cell " << cell;
            EXPECT_EQ(Any(ink, IsDark), holdsLetter && !wrong) << "cell " << cell;
            EXPECT_EQ(ink.empty(), !holdsLetter) << "cell " << cell;
        }
    }

    // Outside of the window's view nothing can be seen, and the clue bar is not the checker's.
    void ExpectBufferOnScreen() {
        EXPECT_EQ(handheld->Client().copy(0, 0, ViewWidth, ViewHeight),
                  BufferImage().copy(ScrollX, ScrollY, ViewWidth, ViewHeight));
    }
};

// Faults: red for right letters or black for wrong ones, an empty cell marked, a grid changed, the
// clue bar gone, red that stays after the next tap or key.
TEST_F(Checker, WrongLettersAreRedUntilTheNextTapOrKey) {
    SquareColor = RGB(10, 90, 40);
    for (MagnificationFlags size : sizes) {
        Play(lopsidedBoard, size);
        EnterMixedLetters();
        const std::string letters = PlayerLetters();
        const QImage clueBar = handheld->Client().copy(0, ViewHeight, 240, 20);
        for (bool byKey : {false, true}) {
            Check();
            ExpectMarkedLetters();
            ExpectBufferOnScreen();
            EXPECT_EQ(handheld->Client().copy(0, ViewHeight, 240, 20), clueBar);
            if (byKey) {
                handheld->Press(Qt::Key_Return);
            } else {
                handheld->TapCell(3, 5);
            }
            EXPECT_FALSE(Any(AllPixels(handheld->Client()), IsRed));
            EXPECT_EQ(PlayerLetters(), letters);
            SelectCell(0, 0, 0);
            RepaintFully(MainWindow);
        }
    }
    SquareColor = RGB(0, 0, 0);
    EXPECT_EQ(TakeShownMessages(), std::vector<ShownMessage>()) << "red letters are the answer";
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
    AnswerNextMessageBox(6);
    EXPECT_TRUE(ChooseFromBar(*handheld, "Main Menu", {"Clear", "Puzzle"}));
    TakeShownMessages();
    EXPECT_EQ(answer(), std::vector{nothingToCheck});
}

// Faults: numbers in Small or although they are switched off, the fills of letter cells and black
// squares exchanged, a margin that is coloured, cells that do not share their outlines.
TEST_F(Checker, BoardsAreRightInEveryPixelAndNumberedBySize) {
    SquareColor = RGB(10, 90, 40);
    BackgroundColor = RGB(250, 240, 200);
    const auto words = WordsOf(lopsidedBoard);
    for (MagnificationFlags size : sizes) {
        for (int shown : {0, 1}) {
            ShowNumbers = shown;
            Play(lopsidedBoard, size);
            Check();
            const BoardPicture picture(lopsidedBoard);
            const auto hasNumber = [&](int row, int col) {
                return shown == 1 && size.Small == 0 &&
                       std::any_of(words.begin(), words.end(), [=](const PlainWord& word) {
                           return word.row == row && word.col == col;
                       });
            };
            const QImage buffer = BufferImage();
            for (int cell = 0; cell < PuzzleWidth * PuzzleHeight; ++cell) {
                const int row = cell / PuzzleWidth;
                const int col = cell % PuzzleWidth;
                EXPECT_EQ(!Ink(picture, buffer, row, col).empty(), hasNumber(row, col))
                    << row << ", " << col << " cells of " << CellSize;
            }
            EXPECT_EQ(ColorAt(buffer, 0, 0), PlainColor(picture, 0, 0));
            EXPECT_EQ(ColorAt(buffer, 239, 247), RGB(255, 255, 255));
        }
    }
    SquareColor = RGB(0, 0, 0);
    BackgroundColor = RGB(255, 255, 255);
    ShowNumbers = 0;
    EXPECT_EQ(TakeShownMessages(), std::vector<ShownMessage>(6, nothingToCheck));
}

// The keyboard stays on the screen, and the clue bar above it.
TEST_F(Checker, LeavesTheKeyboardAlone) {
    Play(lopsidedBoard, largeSize);
    EXPECT_TRUE(handheld->PressButton("Display Keyboard"));
    PlayerGrid[0] = 'Z';
    const QImage below = handheld->Client().copy(0, ViewHeight, 240, 65);
    Check();
    EXPECT_EQ(handheld->Client().copy(0, ViewHeight, 240, 65), below);
    ExpectBufferOnScreen();
}

}  // namespace
