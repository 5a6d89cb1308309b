// The player's links to puzzles, and getting a puzzle from one of them.
#pragma once

#include "platform/types.h"

void ShowDownload(HWND owner);
