// One instance for a user and a program folder: the first one listens on a local socket.
#pragma once

#include "platform/types.h"

// True when this process is now the instance, or nobody can tell; false when another one is, which
// has come forward to show it. Waits for one that is just ending, so that a start always leaves a
// window on the screen.
bool ClaimInstance(const WCHAR* className);

// Stands for the window of the other process.
HWND OtherInstance();
