// The start of the program.
#pragma once

#include "platform/types.h"

// 1 when the main window was created and shown; 0 when another instance came forward instead, or
// the window could not be made.
int InitInstance(HINSTANCE instance, int showCommand);
