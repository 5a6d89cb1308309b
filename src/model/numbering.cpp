#include "model/numbering.h"

#include <array>
#include <cstddef>

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

// A word is as long as it has cells; nothing depends on the order of the list.
void ComputeLengths(WordList words, std::int32_t CellRecord::*clue) {
    std::array<std::int32_t, 2 * maxCells> lengths{};  // by clue: a cell begins two words at most
    for (const CellRecord* cell = Cells; cell != Cells + CellCount(); ++cell) {
        if (cell->*clue != -1) {
            ++lengths[static_cast<std::size_t>(cell->*clue)];
        }
    }
    for (WordRecord& word : words) {
        if (word.clueIndex != -1) {
            word.length = lengths[static_cast<std::size_t>(word.clueIndex)];
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
    ComputeLengths(AcrossList, &CellRecord::acrossClue);
    ComputeLengths(DownList, &CellRecord::downClue);
    return true;
}
