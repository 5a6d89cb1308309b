// The commands of menus, buttons and accelerators.
#pragma once

#include "platform/types.h"

// False for a command that this program does not know.
bool RunCommand(HWND window, int command);
