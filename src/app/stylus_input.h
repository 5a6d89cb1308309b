// What the stylus does on the main window.
#pragma once

#include "platform/types.h"

// Points are packed client points, as the stylus messages carry them.
void HandlePenDown(HWND window, LPARAM point);
void HandlePenMove(HWND window, LPARAM point);
void HandlePenUp(HWND window, LPARAM point);
