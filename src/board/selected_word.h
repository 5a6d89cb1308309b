// Walking the cells of the selected word.
#pragma once

#include "model/puzzle.h"
#include "model/selection.h"
#include "play/word_extent.h"

inline bool SelectionIsBlack() {
    return PlayerGrid[SelectedCell()] == blackSquare;
}

// Calls visit(row, col) from the word's first cell to its last.
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
