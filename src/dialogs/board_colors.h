// Choosing the two colours of the board.
#pragma once

#include "platform/types.h"

// Sets both choosers up, with black squares on a white background. Called by start-up.
void SetUpColorChoosers();

// Both change the colour at once when the player picks one.
void PickSquareColor(HWND dialog);
void PickBackgroundColor(HWND dialog);
