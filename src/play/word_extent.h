// Where words and their numbers lie on the board, and the selected word.
#pragma once

#include "model/selection.h"

// Columns of the cell's row across, rows of its column down.
struct WordExtent {
    int first = 0;
    int last = 0;
};

// True when the cell is one of the puzzle's, and so inside the model's arrays.
bool IsOnBoard(int row, int col);

// The index of the clue of the cell's word in that direction, 0 across or 1 down; -1 when the cell
// has no word there or is off the board.
int ClueIndexAt(int row, int col, int direction);

// Selects a cell by its index in the grids.
void SetCursorFromIndex(int cell);

// Selects the cell that carries the clue number. False, with the selection unchanged, when none
// does; -1 is no number.
bool SelectCellOfNumber(int clueNumber);

// The selected cell's index in the grids, 0 when the selection is off the board.
int SelectedCell();

// The selected cell's word in the current Direction; the cell itself when it has none.
WordExtent FindSelectedExtent();

// True when the selected cell is a black square of the puzzle; the player's grid may have others.
bool SelectionIsBlack();

// Calls visit(row, col) from the selected word's first cell to its last.
template <typename Visitor>
void ForEachCellOfWord(const Visitor& visit) {
    const WordExtent word = FindSelectedExtent();
    for (int position = word.first; position <= word.last; ++position) {
        if (Direction == 0) {
            visit(CursorRow, position);
        } else {
            visit(position, CursorCol);
        }
    }
}
