#include "play/word_extent.h"

#include "model/puzzle.h"
#include "model/selection.h"

bool IsOnBoard(int row, int col) {
    return row >= 0 && row < PuzzleHeight && col >= 0 && col < PuzzleWidth &&
           row * PuzzleWidth + col < maxCells;
}

int ClueIndexAt(int row, int col, int direction) {
    if (!IsOnBoard(row, col)) {
        return -1;
    }
    const CellRecord& cell = Cells[row * PuzzleWidth + col];
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

int SelectedCell() {
    return IsOnBoard(CursorRow, CursorCol) ? CursorRow * PuzzleWidth + CursorCol : 0;
}

WordExtent FindSelectedExtent() {
    return FindWordExtent(CursorRow, CursorCol, Direction);
}

bool SelectionIsBlack() {
    return PlayerGrid[SelectedCell()] == blackSquare;
}
