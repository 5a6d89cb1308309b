// The selection: one cell and the direction of entry.
#pragma once

// Written by start-up, ParsePuzzle, the open and the size commands (all back to the top-left cell),
// letter entry, word jumps, taps and the clue list.
inline int CursorRow = 0;
inline int CursorCol = 0;

// 0 across, 1 down. Written by start-up, ToggleDirection, taps and the clue list.
inline int Direction = 0;
