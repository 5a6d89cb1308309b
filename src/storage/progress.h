// The progress record: one puzzle's letters and the player's settings, in the state file and in
// the progress file beside every puzzle.
#pragma once

#include <string>

#include "platform/types.h"

// CurrentPuzzlePath, the board and the settings. The board is bare when the file of that path has
// become another puzzle since.
std::string RecordOfPlay();

// Both take a path buffer of 260 wide characters and leave a short text in it when they fail.

// Writes that record. "Could not open quadrel.dat" when the file cannot be created or written; an
// old file then stays as it was.
bool SaveProgress(WCHAR* path);

// Restores them. False with "Could not open User", and nothing changed, when there is no file or
// its bytes are no whole record: the path does not end or is too long, a size lies outside 1 to 40,
// the grid is cut short. A setting that is missing or makes no sense stays as it was.
bool LoadProgress(WCHAR* path);
