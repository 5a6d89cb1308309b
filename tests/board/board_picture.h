// What a painted board must look like, pixel by pixel, said in the slow, obvious way.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "app/view.h"
#include "board/board_painter.h"
#include "board/word_highlight.h"
#include "support/played_board.h"

class BoardPicture {
public:
    explicit BoardPicture(const BoardRows& board) : rows(board), words(WordsOf(board)) {
    }

    // The colour of a buffer pixel without any text. With the highlight, too, if asked for.
    COLORREF At(int x, int y, bool highlighted) const {
        const COLORREF white = RGB(255, 255, 255);
        const int width = static_cast<int>(rows[0].size()) * CellSize;
        const int height = static_cast<int>(rows.size()) * CellSize;
        x -= BoardLeft;
        if (x < 0 || x > width || y > height) {
            return white;
        }
        if (x % CellSize == 0 || y % CellSize == 0) {
            return RGB(0, 0, 0);
        }
        const int row = y / CellSize;
        const int col = x / CellSize;
        if (highlighted && row == CursorRow && col == CursorCol) {
            return RGB(255, 200, 125);
        }
        if (Cell(row, col) == '.') {
            return SquareColor;
        }
        if (highlighted && InSelectedWord(row, col)) {
            return RGB(255, 255, 2);
        }
        const bool bevel = x % CellSize == 1 || y % CellSize == 1;
        return bevel ? RGB(192, 192, 192) : BackgroundColor;
    }

    char Cell(int row, int col) const {
        return rows[static_cast<std::size_t>(row)][static_cast<std::size_t>(col)];
    }

    bool InSelectedWord(int row, int col) const {
        return Cell(CursorRow, CursorCol) != '.' &&
               WordAt(words, CursorRow, CursorCol, Direction).Contains(row, col);
    }

    // Whether the pixel lies in the outline square of a cell with something written in it.
    template <typename HasText>
    bool MayHoldInk(int x, int y, const HasText& hasText) const {
        const int row = y / CellSize;
        const int col = (x - BoardLeft) / CellSize;
        return x > BoardLeft && row < static_cast<int>(rows.size()) &&
               col < static_cast<int>(rows[0].size()) && hasText(row, col);
    }

private:
    BoardRows rows;
    std::vector<PlainWord> words;
};

// Compares the whole off-screen buffer; pixels of cells with text are left to other checks.
template <typename Highlighted, typename HasText>
void ExpectPicture(const BoardRows& rows, const Highlighted& highlighted, const HasText& hasText) {
    const BoardPicture picture(rows);
    const QImage buffer = BufferImage();
    ASSERT_EQ(buffer.size(), QSize(BufferWidth, BufferHeight));
    for (int y = 0; y < buffer.height(); ++y) {
        for (int x = 0; x < buffer.width(); ++x) {
            if (!picture.MayHoldInk(x, y, hasText)) {
                const bool inHighlight = highlighted(y / CellSize, (x - BoardLeft) / CellSize);
                ASSERT_EQ(ColorAt(buffer, x, y), picture.At(x, y, inHighlight))
                    << "pixel " << x << ", " << y << " cells of " << CellSize << " selection "
                    << CursorRow << ", " << CursorCol << " direction " << Direction
                    << BoardText(rows);
            }
        }
    }
}

inline void ExpectPicture(const BoardRows& rows, bool highlighted) {
    ExpectPicture(
        rows, [=](int, int) { return highlighted; }, [](int, int) { return false; });
}

// The pixels of a cell's inside that are not as they would be without text.
inline std::vector<COLORREF> InkOfCell(const BoardRows& rows, int row, int col, bool highlighted) {
    const BoardPicture picture(rows);
    const QImage buffer = BufferImage();
    std::vector<COLORREF> ink;
    for (int y = row * CellSize + 1; y < (row + 1) * CellSize; ++y) {
        for (int x = BoardLeft + col * CellSize + 1; x < BoardLeft + (col + 1) * CellSize; ++x) {
            const COLORREF color = ColorAt(buffer, x, y);
            if (color != picture.At(x, y, highlighted)) {
                ink.push_back(color);
            }
        }
    }
    return ink;
}

template <typename Test>
bool Any(const std::vector<COLORREF>& colors, const Test& test) {
    return std::any_of(colors.begin(), colors.end(), test);
}

// A pixel in the middle of a stroke, on any of the fills.
inline bool IsPureRed(COLORREF color) {
    return color == RGB(255, 0, 0);
}

// Thin strokes are not quite black; red and the highlight's colours are bright in one part.
inline bool IsDark(COLORREF color) {
    return std::max({GetRValue(color), GetGValue(color), GetBValue(color)}) < 160;
}

inline std::vector<COLORREF> AllPixels(const QImage& image) {
    std::vector<COLORREF> pixels;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            pixels.push_back(ColorAt(image, x, y));
        }
    }
    return pixels;
}

// Where a number belongs: a word starts there, and numbers are shown.
inline bool HasNumber(int row, int col) {
    const auto words = WordsOf(lopsidedBoard);
    return ShowNumbers == 1 && Magnification.Small == 0 &&
           std::any_of(words.begin(), words.end(),
                       [=](const PlainWord& word) { return word.row == row && word.col == col; });
}

inline bool HasPlayersLetter(int row, int col) {
    const char cell = PlayerGrid[row * PuzzleWidth + col];
    return cell != '-' && cell != '.';
}

template <typename Action>
void ForEachCell(const Action& action) {
    for (int cell = 0; cell < PuzzleWidth * PuzzleHeight; ++cell) {
        SCOPED_TRACE("row " + std::to_string(cell / PuzzleWidth) + ", column " +
                     std::to_string(cell % PuzzleWidth));
        action(cell / PuzzleWidth, cell % PuzzleWidth);
    }
}
