// The player's settings. They are written into every progress record.
#pragma once

#include "model/board_sizes.h"
#include "platform/types.h"

// Exactly one flag is 1. Written by ChooseSize.
inline MagnificationFlags Magnification;

// 0 or 1. Written by start-up, LoadProgress, the toggle commands and Preferences.
inline int AutoSkip = 0;
inline int ShowNumbers = 0;

// Fills of black squares and of letter cells. Written by start-up, LoadProgress and Preferences.
inline COLORREF SquareColor = RGB(0, 0, 0);
inline COLORREF BackgroundColor = RGB(255, 255, 255);

// The size that Magnification chooses, and choosing one.
const BoardSize& ChosenSize();
void ChooseSize(const BoardSize& size);
