// Showing and hiding the on-screen keyboard.
#pragma once

#include "platform/types.h"

// Lowers the soft input panel first: the two are never up together.
void ShowKeyboard(HWND window);
void HideKeyboard(HWND window);

// The layout and the painting after the space below the board became the clue bar's alone.
void LayOutWithoutKeyboard(HWND window);
