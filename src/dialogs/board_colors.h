// Choosing the two colours of the board.
#pragma once

#include "platform/common_dialogs.h"

// What the colour choosers are asked with. Written by SetUpColorChoosers and PickSquareColor or
// PickBackgroundColor; the result is the board's colour.
inline CHOOSECOLOR SquareColorChooser;
inline CHOOSECOLOR BackgroundColorChooser;

// Sets both choosers and their colours up, with black squares on a white background. Called by
// start-up.
void SetUpColorChoosers();

// Both change the colour at once when the player picks one.
void PickSquareColor(HWND dialog);
void PickBackgroundColor(HWND dialog);
