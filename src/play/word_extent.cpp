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
    const int clue = ClueIndexAt(CursorRow, CursorCol, Direction);
    const auto belongs = [clue](int position) {
        return Direction == 0 ? ClueIndexAt(CursorRow, position, Direction) == clue
                              : ClueIndexAt(position, CursorCol, Direction) == clue;
    };
    const int start = Direction == 0 ? CursorCol : CursorRow;
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

bool SelectionIsBlack() {
    return SolutionGrid[SelectedCell()] == blackSquare;
}
