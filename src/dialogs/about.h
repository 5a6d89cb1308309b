// The About box: three pieces slide together into the logo, then links can be tapped.
#pragma once

#include "platform/types.h"

// 1 from the opening of the box until the pieces are together or the player taps. Written by the
// About box and by start-up.
inline int AboutAnimating = 1;

// Where the moving pieces are, in logical pixels: the x of the left piece, the y of the top piece
// and the x of the right one. Written by ResetLogoPieces and the animation.
inline int LogoPieces[3] = {0, 0, 240};

void ResetLogoPieces();
void ShowAbout(HWND owner);
