// Turns a puzzle written as readable text into the bytes of a .puz file.
//
//   Title: Two Birds
//   Author: A. Setter
//   Copyright: © 2026 A. Setter
//
//   Grid:
//       OWL
//       A#O
//       RAT
//
//   Clues:
//       1 across: It gives a hoot
//       3 across: Cheese fan
//       1 down: Boat mover
//       2 down: Destiny's draw
//
//   Notes:
//       Everything down to the end of the file.
//
// - A section begins with its word and a colon, at most once, in any order; only the notes come
//   last, because they run to the end of the file. Every section but the grid may be left out.
// - Grid rows hold letters, upper or lower case alike, and '#' or '.' for a black square. A grid
//   is 1 to 255 squares wide and high. Any run of two or more letters is a word.
// - Clues come in any order. There is exactly one for every word of the grid.
// - Blank lines, indentation and blanks at the end of a line do not matter. In the notes a blank
//   line between others is kept.
// - The text is UTF-8.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct PuzzleTextError {
    int line = 0;  // counted from 1
    std::string reason;
};

// What is asked of a puzzle beyond what a file can hold.
enum class Standard { Any, Bundled };

// The bytes of the .puz file, or nothing and the first error found.
//
// The file has version 1.3 and an empty player grid. Each of its texts is Windows-1252 when it
// can be, which every player program shows rightly, and UTF-8 when it holds anything else.
std::optional<std::vector<unsigned char>> CompilePuzzle(std::string_view text,
                                                        PuzzleTextError& error,
                                                        Standard standard = Standard::Any);
