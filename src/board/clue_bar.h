// The strip under the board with the clue of the selected word.
#pragma once

#include "platform/types.h"

// Draws straight onto the window. The bar stays empty when the selected cell has no word in the
// current direction.
void PaintClueBar(HWND window);
