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

// What makes two files the same puzzle, to which a player's letters belong.
struct PuzzleIdentity {
    int side = 0;  // 0 of a file that cannot be played
    bool isLocked = false;
    std::string solution;  // of a locked puzzle, scrambled
};
PuzzleIdentity IdentityOfFile(const WCHAR* path);
// Of the puzzle in play, whose size must fit the arrays.
PuzzleIdentity IdentityInPlay();
// A solution that was corrected or unlocked is the same puzzle's still; another one, even of the
// same black squares, has few letters in common.
bool IsSamePuzzle(const PuzzleIdentity& puzzle, const PuzzleIdentity& other);
