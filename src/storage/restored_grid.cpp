#include "storage/restored_grid.h"

#include "model/puzzle.h"
#include "model/puzzle_parser.h"

namespace {

// Some files' two grids disagree about a square; letters saved with either are the puzzle's.
bool BlackSquaresAgree() {
    const int count = CellCount();
    const char* fileGrid = PuzzleImage + gridOffset + count;
    for (int i = 0; i < count; ++i) {
        const bool black = PlayerGrid[i] == blackSquare;
        if (black != (SolutionGrid[i] == blackSquare) && black != (fileGrid[i] == blackSquare)) {
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
