// Marking the selected word and cell on the board.
#pragma once

#include "platform/types.h"

constexpr COLORREF WordColor = RGB(255, 255, 2);
constexpr COLORREF SelectedCellColor = RGB(255, 200, 125);

// Draws over what PaintBoard left in the off-screen buffer.
void PaintWordHighlight(HWND window);

// The coloured squares alone: the word in WordColor, the selected cell in SelectedCellColor. A
// black square that is selected is alone in its colour.
void FillWordCells(HDC context);
