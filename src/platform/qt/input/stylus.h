// The stylus: left button, finger or pen; and whether it is held on the spot.
#pragma once

#include "platform/types.h"

// Each queues its message for the window. A hold that counts at once (a right click) has no
// moves and no release.
void StylusPressed(HWND window, POINT point, bool heldAtOnce);
void StylusMoved(HWND window, POINT point);
void StylusReleased(HWND window, POINT point);
