// The grid of a puzzle, and the words that its clues belong to.
#pragma once

#include <cstddef>
#include <string>

#include "tools/puzzle_source.h"

namespace puzzle_text {

constexpr char blackSquare = '.';

struct Grid {
    std::size_t width = 0;
    std::size_t height = 0;
    std::string squares;  // row by row, upper-case letters and '.'

    bool IsWhite(std::size_t row, std::size_t column) const {
        return squares[row * width + column] != blackSquare;
    }
};

// False when there is no letter in it.
bool BuildGrid(const Source& source, Grid& grid, PuzzleTextError& error);

// Puts the source's clues into the order in which the file lists them: by number, across before
// down. False when clues and words do not belong together one to one.
bool SortClues(const Grid& grid, Source& source, PuzzleTextError& error);

}  // namespace puzzle_text
