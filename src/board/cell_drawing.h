// The strokes that all board painters share. They draw into a context with the objects that are
// selected in it, and with the board's fonts.
#pragma once

#include "platform/types.h"

// A cell's outline with the current pen, filled with the current brush.
void DrawCellSquare(HDC context, int row, int col);

// A letter in the middle of its cell, with LetterFont. Zero draws nothing.
void DrawCellLetter(HDC context, int row, int col, char letter);

// The clue number that starts in the cell, if the size and the settings show numbers, with
// NumberFont.
void DrawCellNumber(HDC context, int row, int col);
// The same, cut at the box.
void DrawCellNumberInBox(HDC context, int row, int col, const RECT& box);
