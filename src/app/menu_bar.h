// The main window's menu bar.
#pragma once

#include "platform/types.h"

// Null when the shell refuses.
HWND CreateMenuBar(HWND window);
