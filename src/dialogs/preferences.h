// The dialog of all settings.
#pragma once

#include "platform/types.h"

// Does not repaint the board: the settings may have changed when it returns.
void ShowPreferences(HWND owner);
