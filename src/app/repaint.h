// The fixed orders of painting after a change.
#pragma once

#include "platform/types.h"

// Board, clue bar, keyboard, screen; the highlight of the selection is not drawn.
void Repaint(HWND window);

// Board, highlight, clue bar, keyboard, screen.
void RepaintFully(HWND window);
