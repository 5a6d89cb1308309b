// The list of all clues, and the jump to the word of the chosen one.
#pragma once

#include "platform/types.h"

// 0 while the across clues are shown, 1 while the down clues are. Written by the clue list and by
// start-up.
inline int ClueListTab = 0;

void ShowClueList(HWND owner);
