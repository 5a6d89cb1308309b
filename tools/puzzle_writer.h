// The bytes of a .puz file.
#pragma once

#include <vector>

#include "tools/puzzle_words.h"

namespace puzzle_text {

// The clues are in the order of their words.
std::vector<unsigned char> WritePuzzle(const Grid& grid, const Source& source);

}  // namespace puzzle_text
