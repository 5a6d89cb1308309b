// Windows coming to the screen, changing places on it and leaving it.
#pragma once

#include "platform/qt/window/window.h"

class ClientView;

// A new window, not yet shown, over all others.
void PutOnTop(HWND window, const RECT& frame, ClientView* view);
// After a window over it has gone: the top window gets its title bar back, hears what happened to
// the soft input panel meanwhile, and becomes active.
void ReturnToTopWindow();

// Sends WM_SIZE when the size changed. Content inside both sizes stays.
void MoveWindow(HWND window, const RECT& frame);

int Width(const RECT& frame);
int Height(const RECT& frame);
