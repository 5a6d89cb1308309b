// Building the model of a puzzle from the file that was read.
#pragma once

// Builds the model from PuzzleImage and puts the selection on the top-left cell. Without a word, it
// stops after the sizes when the puzzle is not square, and makes both sizes 15 when they are 0.
void ParsePuzzle();
