// The on-screen keyboard's picture and the flash of a pressed key, both straight on the window.
#pragma once

#include "platform/types.h"

// Client pixels of the main window.
constexpr RECT keyboardArea{0, 225, 240, 269};

void DrawKeyboard(HWND window);
void DrawKeyboardIfVisible(HWND window);

// A key that is held down: its label on yellow. Right and bottom are exclusive.
void DrawPressedKey(HWND window, const RECT& key, const WCHAR* label);
