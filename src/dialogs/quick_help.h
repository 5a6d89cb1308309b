// The legend of the menu bar's buttons.
#pragma once

#include "platform/types.h"

void ShowQuickHelp(HWND owner);
