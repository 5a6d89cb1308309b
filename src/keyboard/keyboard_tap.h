// Tapping the on-screen keyboard.
#pragma once

#include "platform/types.h"

// Flashes the key under the packed client point and does what it says. The "OK" key only clears
// KeyboardVisible; the caller then lays the view out anew.
void KeyboardTap(HWND window, LPARAM point);
