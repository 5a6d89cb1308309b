// The one window of the program.
#pragma once

#include "platform/types.h"

// Declares the window class; 0 when the platform refuses.
ATOM DefineMainClass(HINSTANCE instance, const WCHAR* className);

LRESULT MainWindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
