// Message boxes.
#pragma once

#include "platform/types.h"

constexpr UINT MB_OK = 0;
constexpr UINT MB_YESNO = 4;
constexpr UINT MB_ICONQUESTION = 32;
constexpr UINT MB_ICONINFORMATION = 64;

constexpr int IDOK = 1;
constexpr int IDYES = 6;
constexpr int IDNO = 7;

// Modal. Escape and closing the box answer IDOK for MB_OK and IDNO for MB_YESNO.
int MessageBoxW(HWND owner, const WCHAR* text, const WCHAR* title, UINT style);
