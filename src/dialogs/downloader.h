// Getting a puzzle over the network into a file that the player chooses.
#pragma once

#include "platform/types.h"

// 1 when the whole answer was stored, or was empty; 0 when the download failed, which the player is
// told, or the player cancelled it. A read that fails after the file was created leaves what was
// written so far under the chosen name; a write that fails leaves what was there before. The dialog
// owns the message boxes.
int DownloadPuzzle(HWND dialog, const WCHAR* link);

// Lets the player choose the file for a puzzle of that name. 1 with the full path in the path
// buffer when the player has confirmed it, else 0. Both buffers have 260 characters; the name
// becomes that of the file.
int ChooseSaveLocation(HWND dialog, WCHAR* name, WCHAR* path);
