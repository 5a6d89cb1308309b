// The fixed orders of painting after a change.
#pragma once

#include "platform/types.h"

// Board and highlight of the selection, into the off-screen buffer.
void PaintBoardAndSelection(HWND window);

// What the buffer holds comes to the screen: clue bar and view, and the keyboard between them.
void ShowBoard(HWND window);
void ShowBoardAndKeyboard(HWND window);

// Board, clue bar, keyboard, screen; the highlight of the selection is not drawn.
void Repaint(HWND window);

// Board, highlight, clue bar, keyboard, screen.
void RepaintFully(HWND window);
