// The About box: three pieces slide together into the logo, then links can be tapped.
#pragma once

#include "platform/types.h"

// 1 from the opening of the box until the pieces are together or the player taps. Written by the
// About box and by start-up.
inline int AboutAnimating = 1;

void ShowAbout(HWND owner);
