// Scrolling the larger boards with the stylus.
#pragma once

#include "platform/types.h"

// Moves the view by the way from StylusLast to StylusNow and copies it to the screen. A move that
// would pass an edge of the board is dropped whole, in that direction.
void DragScroll(HWND window);

// Whether the board is larger than its view, so that dragging has somewhere to go.
bool BoardExceedsView(HWND window);
