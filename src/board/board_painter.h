// Painting the grid into the off-screen buffer.
#pragma once

#include "platform/types.h"

constexpr COLORREF BevelColor = RGB(192, 192, 192);
constexpr COLORREF SolutionColor = RGB(255, 0, 0);

// Draws the whole grid, without the highlight of the selection. With ShowSolution set it draws the
// solution this once. Always 1.
int PaintBoard(HWND window);
