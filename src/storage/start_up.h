// The start and the end of a session: defaults, folders, the saved state, the last puzzle.
#pragma once

#include "platform/types.h"

// Runs while the main window is being created. 1 when a puzzle was opened and parsed, else 0.
int InitializeGame(HWND window);

// Writes the state file into the program folder; where that cannot be, the letters at least.
void SaveState();

// The same while the game goes on, when something has changed: nobody waits for the disk. True when
// only the next call knows whether all went well. The player is told once when nothing can be
// written.
bool KeepState();
