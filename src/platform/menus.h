// Popup menus and their check marks.
#pragma once

#include "platform/types.h"

constexpr UINT MF_CHECKED = 0x08;
constexpr UINT MF_UNCHECKED = 0x00;

// The same menu for the same number, with its check marks; null when there is none.
HMENU LoadMenuW(HINSTANCE instance, int id);
// Null when there is no popup at that position, counted from 0.
HMENU GetSubMenu(HMENU menu, int position);

// Finds the item in the menu and its submenus. Returns the earlier mark, MF_CHECKED or
// MF_UNCHECKED, or all bits set when there is no such item.
DWORD CheckMenuItem(HMENU menu, UINT command, UINT flags);

// Opens the popup with its corner at the point of the handheld's screen, moved so far that it can
// be seen whole, and returns when it is closed. The chosen item's WM_COMMAND is queued.
BOOL TrackPopupMenuEx(HMENU menu, UINT flags, int x, int y, HWND window, void* parameters);

// Sent to the menu bar with a drop-down button's command as lParam: the button's popup.
constexpr UINT SHCMBM_GETSUBMENU = 1425;
