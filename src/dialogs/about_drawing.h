// Drawing of the About box, straight onto its window.
#pragma once

#include "platform/types.h"

// Whether all three pieces are where the logo of the picture is.
bool LogoIsTogether();

// Moves the pieces one step nearer and draws them.
void DrawAboutFrame(HWND dialog);

void DrawAboutPicture(HWND dialog);
