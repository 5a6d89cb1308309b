#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "board/board_picture.h"

namespace {

class PaintedBoard : public PlayedBoard {};

// Faults: row and column swapped, outlines not shared or doubled, a bevel one pixel short, left in
// highlighted cells or on black squares, the two fills exchanged, coloured margins, ink in empty
// cells, a highlight of the other direction or one that runs past the right or the bottom edge or
// into the next row, a black square taken for a word.
TEST_F(PaintedBoard, BoardsAndHighlightsAreRightInEveryPixel) {
    for (unsigned seed = 1; seed <= 30; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        const BoardRows rows = RandomBoard(random);
        SquareColor = RGB(10, 90, 40);
        BackgroundColor = RGB(250, 240, 200);
        Play(rows, sizes[seed % 3]);
        PaintBoard(MainWindow);
        ExpectPicture(rows, false);
        const bool toTheEdge = seed % 2 == 0;
        SelectCell(toTheEdge ? PuzzleHeight - 1 : static_cast<int>(random() % 100) % PuzzleHeight,
                   toTheEdge ? PuzzleWidth - 1 : static_cast<int>(random() % 100) % PuzzleWidth,
                   static_cast<int>(random() % 2));
        PaintBoard(MainWindow);
        PaintWordHighlight(MainWindow);
        ExpectPicture(rows, true);
    }
}

// Faults: numbers in Small or although they are switched off, a letter or a number in a cell that
// has none, either of them covered by the highlight.
TEST_F(PaintedBoard, LettersAndNumbersAreInkOfTheirOwnCellsOnly) {
    for (MagnificationFlags size : sizes) {
        for (int shown : {0, 1}) {
            Play(lopsidedBoard, size);
            ShowNumbers = shown;
            std::mt19937 random(7);
            for (int cell = 0; cell < PuzzleWidth * PuzzleHeight; ++cell) {
                if (SolutionGrid[cell] != '.' && random() % 2 == 0) {
                    PlayerGrid[cell] = static_cast<char>('A' + random() % 26);
                }
            }
            SelectCell(3, 2, 0);
            PaintBoard(MainWindow);
            PaintWordHighlight(MainWindow);
            const auto hasText = [](int row, int col) {
                return HasPlayersLetter(row, col) || HasNumber(row, col);
            };
            ExpectPicture(
                lopsidedBoard, [](int, int) { return true; }, hasText);
            ForEachCell([&hasText](int row, int col) {
                EXPECT_EQ(Any(InkOfCell(lopsidedBoard, row, col, true), IsDark), hasText(row, col));
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

// A one-letter difference in every cell of a large board: cheap when letters are cached, and a
// guard against a painter that draws letters from the wrong place.
TEST_F(PaintedBoard, EachLetterIsDrawnInItsOwnShape) {
    Play({"AB", "CD"}, largeSize);
    std::vector<QImage> pictures;
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        PlayerGrid[3] = letter;
        PaintBoard(MainWindow);
        const QImage picture = BufferImage();
        EXPECT_EQ(std::count(pictures.begin(), pictures.end(), picture), 0) << letter;
        pictures.push_back(picture);
    }
}

}  // namespace
