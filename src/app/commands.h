// The commands of menus, buttons and accelerators.
#pragma once

#include "platform/types.h"

// False for a command that this program does not know.
bool RunCommand(HWND window, int command);

// Opens the first of files that were handed over, and lets go of them.
void OpenHandedPuzzle(HWND window, HDROP files);
