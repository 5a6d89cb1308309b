// What is expected of the puzzles that come with the game, beyond what its files can hold.
#pragma once

#include "tools/puzzle_words.h"

namespace puzzle_text {

// A square board of at most 40 by 40 that begins with a letter, looks the same upside down and is
// in one piece; every letter in an across and a down word of three letters or more, no word twice,
// and clues that the game's small bar can show. False, with the first line that breaks one of
// these, when the puzzle is not like that.
bool IsWellMade(const Grid& grid, const Source& source, PuzzleTextError& error);

}  // namespace puzzle_text
