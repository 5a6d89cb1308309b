// The sections of a puzzle's text, read but not yet compared with each other.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tools/puzzle_text.h"

namespace puzzle_text {

// Lines are counted from 1; a view lives as long as the text it was read from.
struct Line {
    int number;
    std::string_view text;
};

enum class Direction { Across, Down };

struct Clue {
    int line;
    int number;
    Direction direction;
    std::string_view text;
};

struct Source {
    std::string_view title;
    std::string_view author;
    std::string_view copyright;
    std::vector<Line> rows;  // equally wide, of letters, '#' and '.'
    std::vector<Clue> clues;
    std::string notes;
    int lastLine = 1;
};

// False always, with the reason in the error.
bool Fail(PuzzleTextError& error, int line, std::string reason);

// False when a line is not what its section holds.
bool ReadSource(std::string_view text, Source& source, PuzzleTextError& error);

}  // namespace puzzle_text
