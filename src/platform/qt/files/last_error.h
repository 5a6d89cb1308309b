// What GetLastError answers.
#pragma once

#include "platform/errors.h"

void SetLastError(DWORD error);
// Sets it and returns FALSE.
BOOL Fail(DWORD error);

// The handheld's number for an errno; the other one for what has no number of its own.
DWORD ErrorOfSystem(int systemError, DWORD otherwise);
