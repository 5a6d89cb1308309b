// Choosing a cell with the stylus.
#pragma once

#include "platform/types.h"

// Selects the cell under the point, or turns the direction when it is selected already and the
// stylus is not being held on it; a black square and a cell without both words stay unselected.
// The point is the packed client point of a stylus message. Paints the board, the highlight and
// the clue bar; the caller copies the view to the screen.
void HandleBoardTap(HWND window, LPARAM point);
