// Peeking at the solution without entering it: each hint is on the screen until the next repaint
// of the board.
#pragma once

#include "platform/types.h"

// Each paints the board, the clue bar and the keyboard, and copies the view to the screen.
void ShowLetterSolution(HWND window);
void ShowWordSolution(HWND window);
void ShowPuzzleSolution(HWND window);
