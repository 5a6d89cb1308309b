// Checking what the player has entered so far.
#pragma once

#include "platform/types.h"

// Paints the board with wrong letters in red, in place of PaintBoard, copies it to the screen and
// says so when nothing is wrong or nothing is entered. PaintBoard has run before.
void CheckPuzzle(HWND window);
