// Fitting the board into the main window.
#pragma once

#include "platform/types.h"

// Computes the layout for the size that is set, scrolls to the top-left corner and makes the
// buffer anew; it is white until the next PaintBoard.
void ComputeLayout(HWND window);

// Gives the view all above the reserve, without a new buffer.
void ReserveBelowView(HWND window, int reserve);

// Gives the view all above the clue bar, without a new buffer: the larger sizes keep their scroll
// position, and the bottom edge of the view stays over the same board row.
void KeepBottomEdge(HWND window);
