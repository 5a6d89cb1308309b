// Drawing of the About box, straight onto its window.
#pragma once

#include "platform/types.h"

// Where the moving pieces are, in logical pixels: the x of the left piece, the y of the top piece
// and the x of the right one. Written by ResetLogoPieces and the animation.
inline int LogoPieces[3] = {0, 0, 240};

void ResetLogoPieces();

// Whether all three pieces are where the logo of the picture is.
bool LogoIsTogether();

// Moves the pieces one step nearer and draws them.
void DrawAboutFrame(HWND dialog);

void DrawAboutPicture(HWND dialog);
