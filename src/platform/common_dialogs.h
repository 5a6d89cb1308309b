// The choosers that the handheld offers to every program.
#pragma once

#include "platform/types.h"

constexpr DWORD OFN_EXPLORER = 0x00080000;

struct OPENFILENAMEW {
    HWND hwndOwner = nullptr;
    const WCHAR* lpstrFilter = nullptr;  // pairs of name and pattern, ended by an empty string
    WCHAR* lpstrFile = nullptr;          // the full device path
    DWORD nMaxFile = 0;                  // in characters
    WCHAR* lpstrFileTitle = nullptr;     // the bare file name
    DWORD nMaxFileTitle = 0;
    const WCHAR* lpstrTitle = nullptr;
    DWORD Flags = 0;
};

// FALSE when the player cancelled; the buffers are then unchanged. A name that has no device path
// (a backslash in it, or more than 259 bytes of UTF-8, the most that a record holds) is explained
// to the player, who chooses again.
BOOL GetOpenFileNameW(OPENFILENAMEW* request);

// The same for a file to be written. The chooser opens in the folder of the path in lpstrFile, with
// the name after its last backslash suggested. A name without an extension gets the pattern's, and
// the player is asked before an existing file is taken.
BOOL GetSaveFileNameW(OPENFILENAMEW* request);

constexpr DWORD CC_ENABLEHOOK = 16;

using CCHOOKPROC = UINT (*)(HWND chooser, UINT message, WPARAM wParam, LPARAM lParam);

struct CHOOSECOLOR {
    DWORD lStructSize = 0;
    HWND hwndOwner = nullptr;
    HINSTANCE hInstance = nullptr;
    COLORREF rgbResult = 0;            // the colour to start with, and the one that was picked
    COLORREF* lpCustColors = nullptr;  // sixteen, which the player may change
    DWORD Flags = 0;
    LPARAM lCustData = 0;
    CCHOOKPROC lpfnHook = nullptr;
    const WCHAR* lpTemplateName = nullptr;
};

// FALSE when the player cancelled; the result is then unchanged, but the custom colours may not
// be. The hook is told WM_INITDIALOG when the chooser opens, WM_COMMAND (IDOK, IDCANCEL) for its
// buttons and WM_CLOSE before the chooser does what they ask for.
BOOL ChooseColor(CHOOSECOLOR* request);
