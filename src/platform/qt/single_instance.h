// One instance for a user and a program folder: the first one listens on a local socket.
#pragma once

#include "platform/types.h"

// True when this process is now the instance, or nobody can tell; false when another one is.
bool ClaimInstance(const WCHAR* className);

// Stands for the window of the other process.
HWND OtherInstance();
BOOL AskOtherInstanceForward();
