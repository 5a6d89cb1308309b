// The letters of puzzles that are not in play: beside their puzzles, or where nothing can be
// written there, in a second place, a file in the program folder for every puzzle's path.
#pragma once

#include <cstdint>

#include "platform/types.h"

// Those of the puzzle in play. False when they could be written nowhere.
bool SaveLetters();
bool SaveLettersInSecondPlace();

// The newer ones of both places, with the settings and the path that they were written with. False,
// and nothing changed, when there are none.
bool LoadLetters(const WCHAR* puzzlePath);
// When those were written, 0 for never.
std::uint64_t TimeOfLetters(const WCHAR* puzzlePath);
