// The player's settings. They are written into every progress record.
#pragma once

#include "platform/common_dialogs.h"
#include "platform/types.h"

struct MagnificationFlags {
    int Small = 1;
    int Medium = 0;
    int Large = 0;
};

// Exactly one flag is 1. Written by start-up, LoadProgress, the size commands and Preferences.
inline MagnificationFlags Magnification;

// 0 or 1. Written by start-up, LoadProgress, the toggle commands and Preferences.
inline int AutoSkip = 0;
inline int ShowNumbers = 0;

// Set up by start-up; each keeps its colour as the result that the player picked last.
inline CHOOSECOLOR SquareColorChooser{.rgbResult = RGB(0, 0, 0)};
inline CHOOSECOLOR BackgroundColorChooser{.rgbResult = RGB(255, 255, 255)};

// Fills of black squares and of letter cells. Written by start-up, LoadProgress and Preferences.
inline COLORREF& SquareColor = SquareColorChooser.rgbResult;
inline COLORREF& BackgroundColor = BackgroundColorChooser.rgbResult;
