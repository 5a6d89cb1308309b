// Opening another puzzle.
#pragma once

#include "platform/types.h"

// Lets the player choose a file, saves the progress of the puzzle being left and restores that of
// the chosen one. 0 when the player cancelled or declined or the file is not one to be played,
// else 1, also when the file could not be read. The owner is the main window.
int OpenPuzzleFile(HWND owner);

// The same for files that were handed over, without the choosing: the first of them is taken, and
// the player is told when there are others.
int OpenHandedFile(HWND owner, HDROP files);
