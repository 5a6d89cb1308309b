#include "storage/restored_grid.h"

#include "model/puzzle.h"

namespace {

bool BlackSquaresAgree() {
    for (int i = 0; i < PuzzleWidth * PuzzleHeight; ++i) {
        if ((PlayerGrid[i] == blackSquare) != (SolutionGrid[i] == blackSquare)) {
            return false;
        }
    }
    return true;
}

}  // namespace

void ParseWithRestoredGrid() {
    const int restoredWidth = PuzzleWidth;
    const int restoredHeight = PuzzleHeight;
    ParsePuzzle();
    const bool sizeAgrees = restoredWidth == PuzzleWidth && restoredHeight == PuzzleHeight;
    if (ResetPlayerGrid == 0 && !(sizeAgrees && BlackSquaresAgree())) {
        ResetPlayerGrid = 1;
        ParsePuzzle();
    }
}
