// Puzzle files: reading one, and telling whether two are the same puzzle.
#pragma once

#include <string>

#include "platform/types.h"

// Takes a path buffer of 260 wide characters. False when the file cannot be opened, or when it is
// no puzzle that these arrays hold, which the player is told; the path buffer then says "Could not
// open the file" and PuzzleImage is unchanged. A puzzle that is not square, or of size 0, is read.
bool ReadPuzzleFile(WCHAR* path);

// The size of a file that ReadPuzzleFile would read, which need not be square. False when it would
// not read the file; nobody is told, and nothing changes.
bool PeekPuzzleSize(const WCHAR* path, int* width, int* height);

// The two size bytes and the solution: what makes two files the same puzzle, to which a player's
// letters belong. Of a file that can be played, empty for any other; and of the puzzle in play,
// whose size must fit the arrays.
std::string SolutionOfFile(const WCHAR* path);
std::string SolutionInPlay();
// A solution that was corrected is the same puzzle's still; another one of the same size, and even
// of the same black squares, has few letters in common.
bool IsSamePuzzle(const std::string& solution, const std::string& other);
