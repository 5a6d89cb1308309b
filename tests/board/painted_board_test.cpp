#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "board/board_picture.h"
#include "platform/drawing.h"

namespace {

class PaintedBoard : public PlayedBoard {};

bool IsRed(COLORREF color) {
    return GetRValue(color) == 255 && GetGValue(color) == GetBValue(color) &&
           GetGValue(color) < 255;
}

// Faults: row and column swapped, outlines not shared or doubled, a bevel one pixel short or on
// black squares, the two fills exchanged, coloured margins, ink in empty cells.
TEST_F(PaintedBoard, EmptyBoardsAreRightInEveryPixel) {
    for (unsigned seed = 1; seed <= 12; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        const BoardRows rows = RandomBoard(random);
        SquareColor = RGB(10, 90, 40);
        BackgroundColor = RGB(250, 240, 200);
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
        ExpectPicture(lopsidedBoard, true, HasPlayersLetter);
        ForEachCell([](int row, int col) {
            EXPECT_EQ(Any(InkOfCell(lopsidedBoard, row, col, true), IsDark),
                      HasPlayersLetter(row, col));
        });
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
            ExpectPicture(lopsidedBoard, true, HasNumber);
            ForEachCell([](int row, int col) {
                EXPECT_EQ(Any(InkOfCell(lopsidedBoard, row, col, true), IsDark),
                          HasNumber(row, col));
            });
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
    EXPECT_TRUE(Any(numberedInk, IsRed));
    EXPECT_TRUE(Any(numberedInk, IsDark));

    PaintBoard(MainWindow);
    const auto playerInk = InkOfCell(lopsidedBoard, 2, 4, false);
    EXPECT_TRUE(Any(playerInk, IsDark));
    EXPECT_FALSE(Any(playerInk, IsRed));
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
