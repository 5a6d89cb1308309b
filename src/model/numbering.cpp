#include "model/numbering.h"

#include <algorithm>

#include "model/puzzle.h"

namespace {

struct Board {
    const char* cells;
    int width;
    int height;

    // Everything around the board counts as black.
    bool IsBlack(int row, int col) const {
        return row < 0 || col < 0 || row >= height || col >= width ||
               cells[row * width + col] == blackSquare;
    }
    // A single cell between black squares is no word.
    bool StartsAcross(int row, int col) const {
        return !IsBlack(row, col) && IsBlack(row, col - 1) && !IsBlack(row, col + 1);
    }
    bool StartsDown(int row, int col) const {
        return !IsBlack(row, col) && IsBlack(row - 1, col) && !IsBlack(row + 1, col);
    }
};

struct Numbering {
    int clueIndex = 0;
    int clueNumber = 1;
    WordCount count;
};

void AppendWord(WordRecord* list, int& count, const Numbering& next) {
    if (count < maxWords) {
        list[count++] = {next.clueIndex, next.clueNumber, -1};
    }
}

void NumberCell(const Board& board, int row, int col, Numbering& next) {
    const int index = row * board.width + col;
    CellRecord& cell = Cells[index];
    const bool startsAcross = board.StartsAcross(row, col);
    const bool startsDown = board.StartsDown(row, col);
    if (startsAcross) {
        AppendWord(AcrossList, next.count.across, next);
        cell.acrossClue = next.clueIndex++;
    } else if (!board.IsBlack(row, col - 1)) {
        cell.acrossClue = Cells[index - 1].acrossClue;
    }
    if (startsDown) {
        AppendWord(DownList, next.count.down, next);
        cell.downClue = next.clueIndex++;
    } else if (!board.IsBlack(row - 1, col)) {
        cell.downClue = Cells[index - board.width].downClue;
    }
    if (startsAcross || startsDown) {
        cell.clueNumber = next.clueNumber++;
    }
}

void ComputeAcrossLengths() {
    int word = 0;
    for (int row = 0; row < PuzzleHeight; ++row) {
        const CellRecord* cells = Cells + row * PuzzleWidth;
        for (int col = 0; col < PuzzleWidth;) {
            const int clue = cells[col].acrossClue;
            const int start = col++;
            while (col < PuzzleWidth && clue != -1 && cells[col].acrossClue == clue) {
                ++col;
            }
            if (clue != -1 && word < maxWords) {
                AcrossList[word++].length = col - start;
            }
        }
    }
}

void SetDownLength(int clue, int length) {
    WordRecord* end = std::end(DownList);
    WordRecord* word = std::find_if(std::begin(DownList), end, [clue](const WordRecord& record) {
        return record.clueIndex == clue;
    });
    if (word != end) {
        word->length = length;
    }
}

void ComputeDownLengths() {
    for (int col = 0; col < PuzzleWidth; ++col) {
        const CellRecord* cells = Cells + col;
        for (int row = 0; row < PuzzleHeight;) {
            const int clue = cells[row * PuzzleWidth].downClue;
            const int start = row++;
            while (row < PuzzleHeight && clue != -1 && cells[row * PuzzleWidth].downClue == clue) {
                ++row;
            }
            if (clue != -1) {
                SetDownLength(clue, row - start);
            }
        }
    }
}

}  // namespace

WordCount CountWords(const char* solution, int width, int height) {
    const Board board{solution, width, height};
    WordCount count;
    for (int row = 0; row < height; ++row) {
        for (int col = 0; col < width; ++col) {
            count.across += board.StartsAcross(row, col) ? 1 : 0;
            count.down += board.StartsDown(row, col) ? 1 : 0;
        }
    }
    return count;
}

bool BoardFitsArrays() {
    return PuzzleWidth >= 1 && PuzzleHeight >= 1 && PuzzleWidth <= maxCells / PuzzleHeight;
}

void NumberGrid() {
    const Board board{SolutionGrid, PuzzleWidth, PuzzleHeight};
    Numbering next;
    for (int row = 0; row < PuzzleHeight; ++row) {
        for (int col = 0; col < PuzzleWidth; ++col) {
            if (!board.IsBlack(row, col)) {
                NumberCell(board, row, col, next);
            }
        }
    }
}

bool ComputeWordLengths() {
    if (!BoardFitsArrays()) {
        return false;
    }
    ComputeAcrossLengths();
    ComputeDownLengths();
    return true;
}
