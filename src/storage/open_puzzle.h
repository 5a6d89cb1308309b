// Opening another puzzle.
#pragma once

#include "platform/types.h"

// Lets the player choose a file, saves the progress of the puzzle being left and restores that of
// the chosen one. 0 when the player cancelled or declined or the file is not one to be played,
// else 1, also when the file could not be read. The owner is the main window.
int OpenPuzzleFile(HWND owner);
