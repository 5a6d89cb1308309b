// Where a cell lies in the off-screen buffer. Logical pixels; right and bottom are exclusive.
#pragma once

#include "app/view.h"
#include "platform/types.h"

// The whole outline, which a cell shares with its neighbours.
inline RECT OutlineSquare(int row, int col) {
    const int left = BoardLeft + col * CellSize;
    const int top = row * CellSize;
    return {left, top, left + CellSize + 1, top + CellSize + 1};
}

// Reaches half a cell beyond the outline, so that three digits are never cut.
inline RECT NumberBox(int row, int col) {
    const int left = BoardLeft + col * CellSize;
    const int top = row * CellSize;
    return {left + 1, top, left + CellSize + CellSize / 2, top + CellSize + CellSize / 2};
}
