#include "play/fill_clear.h"

#include <algorithm>

#include "model/puzzle.h"
#include "model/selection.h"
#include "play/word_extent.h"

namespace {

int CellCount() {
    return std::clamp(PuzzleWidth * PuzzleHeight, 0, maxCells);
}

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
    ForEachCellOfWord([](int row, int col) { FillCell(row * PuzzleWidth + col); });
}

void ClearWord() {
    ForEachCellOfWord([](int row, int col) { ClearCell(row * PuzzleWidth + col); });
}

void FillPuzzle() {
    std::copy_n(SolutionGrid, CellCount(), PlayerGrid);
}

void ClearPuzzle() {
    std::transform(SolutionGrid, SolutionGrid + CellCount(), PlayerGrid,
                   [](char cell) { return cell == blackSquare ? blackSquare : emptyCell; });
}
