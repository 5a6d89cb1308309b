#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "board/board_picture.h"
#include "platform/drawing.h"

namespace {

class PaintedBoard : public PlayedBoard {
protected:
    static void SetColors(COLORREF square, COLORREF background) {
        SquareColor = square;
        BackgroundColor = background;
    }
};

constexpr MagnificationFlags sizes[] = {smallSize, mediumSize, largeSize};

bool IsRed(COLORREF color) {
    return GetRValue(color) == 255 && GetGValue(color) == GetBValue(color) &&
           GetGValue(color) < 255;
}

bool IsGrey(COLORREF color) {
    return GetRValue(color) == GetGValue(color) && GetGValue(color) == GetBValue(color);
}

// Thin strokes are not quite black; red and the highlight's colours are bright in one part.
bool HasBlack(const std::vector<COLORREF>& ink) {
    return std::any_of(ink.begin(), ink.end(), [](COLORREF color) {
        return std::max({GetRValue(color), GetGValue(color), GetBValue(color)}) < 160;
    });
}

// Faults: row and column swapped, outlines not shared or doubled, a bevel one pixel short or on
// black squares, the two fills exchanged, coloured margins, ink in empty cells.
TEST_F(PaintedBoard, EmptyBoardsAreRightInEveryPixel) {
    for (unsigned seed = 1; seed <= 12; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        const BoardRows rows = RandomBoard(random);
        SetColors(RGB(10, 90, 40), RGB(250, 240, 200));
        Play(rows, sizes[seed % 3]);
        PaintBoard(MainWindow);
        ExpectPicture(rows, false);
    }
}

// Faults: a word that runs past the right or the bottom edge or into the next row, a highlight of
// the other direction, bevels left in highlighted cells, a black square taken for a word.
TEST_F(PaintedBoard, HighlightsCoverTheSelectedWordAndNothingElse) {
    for (unsigned seed = 1; seed <= 30; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        const BoardRows rows = RandomBoard(random);
        Play(rows, sizes[seed % 3]);
        const bool toTheEdge = seed % 2 == 0;
        SelectCell(toTheEdge ? PuzzleHeight - 1 : static_cast<int>(random() % 100) % PuzzleHeight,
                   toTheEdge ? PuzzleWidth - 1 : static_cast<int>(random() % 100) % PuzzleWidth,
                   static_cast<int>(random() % 2));
        PaintBoard(MainWindow);
        PaintWordHighlight(MainWindow);
        ExpectPicture(rows, true);
    }
}

TEST_F(PaintedBoard, LettersAreInkOfTheirOwnCellOnly) {
    for (MagnificationFlags size : sizes) {
        Play(lopsidedBoard, size);
        std::mt19937 random(7);
        for (int i = 0; i < PuzzleWidth * PuzzleHeight; ++i) {
            if (SolutionGrid[i] != '.' && random() % 2 == 0) {
                PlayerGrid[i] = static_cast<char>('A' + random() % 26);
            }
        }
        SelectCell(3, 2, 0);
        PaintBoard(MainWindow);
        PaintWordHighlight(MainWindow);
        const auto hasLetter = [](int row, int col) {
            const char cell = PlayerGrid[row * PuzzleWidth + col];
            return cell != '-' && cell != '.';
        };
        ExpectPicture(lopsidedBoard, true, hasLetter);
        for (int row = 0; row < PuzzleHeight; ++row) {
            for (int col = 0; col < PuzzleWidth; ++col) {
                EXPECT_EQ(HasBlack(InkOfCell(lopsidedBoard, row, col, true)), hasLetter(row, col))
                    << row << ", " << col;
            }
        }
    }
}

// Faults: numbers in Small, numbers although they are switched off, a number in a cell where no
// word starts, numbers covered by the highlight.
TEST_F(PaintedBoard, NumbersShowWhereWordsStartInTheLargerSizesOnly) {
    for (MagnificationFlags size : sizes) {
        for (int shown : {0, 1}) {
            Play(lopsidedBoard, size);
            ShowNumbers = shown;
            SelectCell(3, 2, 0);
            PaintBoard(MainWindow);
            PaintWordHighlight(MainWindow);
            const auto words = WordsOf(lopsidedBoard);
            const auto hasNumber = [&](int row, int col) {
                return shown == 1 && size.Small == 0 &&
                       std::any_of(words.begin(), words.end(), [=](const PlainWord& word) {
                           return word.row == row && word.col == col;
                       });
            };
            ExpectPicture(lopsidedBoard, true, hasNumber);
            for (int row = 0; row < PuzzleHeight; ++row) {
                for (int col = 0; col < PuzzleWidth; ++col) {
                    EXPECT_EQ(HasBlack(InkOfCell(lopsidedBoard, row, col, true)),
                              hasNumber(row, col))
                        << row << ", " << col;
                }
            }
        }
    }
}

// The last column's number has only the white margin beside it, where its whole reach is seen.
TEST_F(PaintedBoard, LongNumbersReachHalfACellBeyondTheirOwn) {
    for (MagnificationFlags size : {mediumSize, largeSize}) {
        Play({"AB", "CD"}, size);
        ShowNumbers = 1;
        Cells[1].clueNumber = 1888888888;
        PaintBoard(MainWindow);
        const QImage buffer = BufferImage();
        const int right = BoardLeft + 2 * CellSize;
        int furthest = 0;
        for (int x = right + 1; x < BufferWidth; ++x) {
            for (int y = 0; y < CellSize; ++y) {
                if (ColorAt(buffer, x, y) != RGB(255, 255, 255)) {
                    furthest = x - right;
                }
            }
        }
        EXPECT_GE(furthest, CellSize / 2 - 3);
        EXPECT_LT(furthest, CellSize / 2);
    }
}

// Faults: the solution stays, letters of the solution are left black, numbers turn red.
TEST_F(PaintedBoard, SolutionIsShownOnceInRedWithBlackNumbers) {
    Play(lopsidedBoard, mediumSize);
    ShowNumbers = 1;
    PlayerGrid[2 * 7 + 4] = 'Z';
    ShowSolution = 1;
    PaintBoard(MainWindow);
    EXPECT_EQ(ShowSolution, 0);
    const auto letterInk = InkOfCell(lopsidedBoard, 2, 4, false);  // no word starts in this cell
    EXPECT_GT(std::count_if(letterInk.begin(), letterInk.end(), IsRed), 10);
    const auto isLetter = [](int row, int col) {
        return lopsidedBoard[static_cast<std::size_t>(row)][static_cast<std::size_t>(col)] != '.';
    };
    ExpectPicture(lopsidedBoard, false, isLetter);
    const auto numberedInk = InkOfCell(lopsidedBoard, 0, 0, false);
    EXPECT_TRUE(std::any_of(numberedInk.begin(), numberedInk.end(), IsRed));
    EXPECT_TRUE(HasBlack(numberedInk));

    PaintBoard(MainWindow);
    const auto playerInk = InkOfCell(lopsidedBoard, 2, 4, false);
    EXPECT_TRUE(HasBlack(playerInk));
    EXPECT_TRUE(std::all_of(playerInk.begin(), playerInk.end(), IsGrey));
}

// A one-letter difference in every cell of a large board: cheap when letters are cached, and a
// guard against a painter that draws letters from the wrong place.
TEST_F(PaintedBoard, EachLetterIsDrawnInItsOwnShape) {
    Play({"AB", "CD"}, largeSize);
    const auto inkOf = [](char letter) {
        PlayerGrid[3] = letter;
        PaintBoard(MainWindow);
        return BufferImage();
    };
    std::vector<QImage> pictures;
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        const QImage picture = inkOf(letter);
        EXPECT_EQ(std::count(pictures.begin(), pictures.end(), picture), 0) << letter;
        pictures.push_back(picture);
    }
}

}  // namespace
