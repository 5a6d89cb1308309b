#include "play/fill_clear.h"

#include <algorithm>

#include "model/puzzle.h"
#include "play/word_extent.h"

namespace {

void FillCell(int cell) {
    if (PlayerGrid[cell] != blackSquare) {
        PlayerGrid[cell] = SolutionGrid[cell];
    }
}

void ClearCell(int cell) {
    if (PlayerGrid[cell] != blackSquare) {
        PlayerGrid[cell] = emptyCell;
    }
}

}  // namespace

void FillLetter() {
    FillCell(SelectedCell());
}

void ClearLetter() {
    ClearCell(SelectedCell());
}

void FillWord() {
    ForEachCellOfWord([](int row, int col) { FillCell(CellIndex(row, col)); });
}

void ClearWord() {
    ForEachCellOfWord([](int row, int col) { ClearCell(CellIndex(row, col)); });
}

void FillPuzzle() {
    std::copy_n(SolutionGrid, CellCount(), PlayerGrid);
}

void ClearPuzzle() {
    EmptyPlayerGrid(SolutionGrid);
}
