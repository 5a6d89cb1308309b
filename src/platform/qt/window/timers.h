// The timers of the program's windows.
#pragma once

#include "platform/windows.h"

void StopTimersOf(HWND window);
