#include "play/word_extent.h"

#include <algorithm>
#include <iterator>

#include "model/puzzle.h"
#include "model/selection.h"

bool IsOnBoard(int row, int col) {
    return row >= 0 && row < PuzzleHeight && col >= 0 && col < PuzzleWidth &&
           CellIndex(row, col) < maxCells;
}

int ClueIndexAt(int row, int col, int direction) {
    if (!IsOnBoard(row, col)) {
        return -1;
    }
    const CellRecord& cell = Cells[CellIndex(row, col)];
    return direction == 0 ? cell.acrossClue : cell.downClue;
}

WordExtent FindWordExtent(int row, int col, int direction) {
    const int clue = ClueIndexAt(row, col, direction);
    const int start = direction == 0 ? col : row;
    const auto belongs = [&](int position) {
        return direction == 0 ? ClueIndexAt(row, position, direction) == clue
                              : ClueIndexAt(position, col, direction) == clue;
    };
    WordExtent word{start, start};
    // Neighbours that have no word either are not one word with it.
    if (clue == -1) {
        return word;
    }
    while (belongs(word.first - 1)) {
        --word.first;
    }
    while (belongs(word.last + 1)) {
        ++word.last;
    }
    return word;
}

void SetCursorFromIndex(int cell) {
    CursorRow = cell / PuzzleWidth;
    CursorCol = cell % PuzzleWidth;
}

bool SelectCellOfNumber(int clueNumber) {
    const CellRecord* end = Cells + CellCount();
    const CellRecord* found = std::find_if(
        std::cbegin(Cells), end,
        [clueNumber](const CellRecord& cell) { return cell.clueNumber == clueNumber; });
    if (clueNumber == -1 || found == end) {
        return false;
    }
    SetCursorFromIndex(static_cast<int>(found - Cells));
    return true;
}

int SelectedCell() {
    return IsOnBoard(CursorRow, CursorCol) ? CellIndex(CursorRow, CursorCol) : 0;
}

WordExtent FindSelectedExtent() {
    return FindWordExtent(CursorRow, CursorCol, Direction);
}

bool SelectionIsBlack() {
    return PlayerGrid[SelectedCell()] == blackSquare;
}
