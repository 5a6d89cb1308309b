// The selection: one cell and the direction of entry.
#pragma once

// Written by ParsePuzzle and the size commands (back to the top-left cell), letter entry, word
// jumps, taps and the clue list.
inline int CursorRow = 0;
inline int CursorCol = 0;

// 0 across, 1 down. Written by ToggleDirection, taps and the clue list.
inline int Direction = 0;
