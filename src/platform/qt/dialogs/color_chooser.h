// The colour chooser that is open.
#pragma once

#include "platform/types.h"

// Closes it without taking its colour. FALSE when the handle is not the open chooser's.
BOOL EndColorChooser(HWND chooser);
