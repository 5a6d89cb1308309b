// The controls of a dialog: what they are told, and what they tell the dialog.
//
// A control tells the dialog what happened with WM_COMMAND: its identifier in the low and the
// notification in the high word of wParam, its handle in lParam. All of it is sent at once. What a
// message changes is not told; only what the player does is.
#pragma once

#include "platform/types.h"

// Every control. A font is the caller's to delete, after the dialog has closed.
constexpr UINT WM_SETFONT = 48;
constexpr UINT WM_GETFONT = 49;

BOOL EnableWindow(HWND control, BOOL enabled);
// The length of the text, cut to the buffer. Edit boxes, buttons and static texts.
int GetWindowTextW(HWND control, WCHAR* buffer, int bufferSize);
BOOL SetWindowTextW(HWND control, const WCHAR* text);

// Buttons.
constexpr UINT BM_GETCHECK = 240;
constexpr UINT BM_SETCHECK = 241;
constexpr WPARAM BST_UNCHECKED = 0;
constexpr WPARAM BST_CHECKED = 1;
constexpr int BN_CLICKED = 0;

// List boxes. Lines count from 0. A line is chosen by a tap, or by Enter or the space bar on the
// line that the arrow keys moved to: only choosing notifies, moving does not.
constexpr UINT LB_ADDSTRING = 384;     // the new line's number
constexpr UINT LB_DELETESTRING = 386;  // the number of lines left
constexpr UINT LB_RESETCONTENT = 388;
constexpr UINT LB_SETCURSEL = 390;  // -1 selects none; the line, or LB_ERR
constexpr UINT LB_GETCURSEL = 392;  // LB_ERR when none is selected
constexpr UINT LB_GETTEXT = 393;    // the length; lParam has room for it and a zero
constexpr UINT LB_GETTEXTLEN = 394;
constexpr UINT LB_GETCOUNT = 395;
// The least width to scroll over, in logical pixels; a line that is longer widens it. A list that
// was not told one shortens long lines instead.
constexpr UINT LB_SETHORIZONTALEXTENT = 404;
// The first line equal to the text in any case of letters, after the line of wParam and around the
// end; LB_ERR when there is none.
constexpr UINT LB_FINDSTRINGEXACT = 418;
constexpr LRESULT LB_ERR = -1;
constexpr int LBN_SELCHANGE = 1;

// Edit boxes.
constexpr int EN_SETFOCUS = 256;
constexpr int EN_KILLFOCUS = 512;

// Tab controls. They tell with WM_NOTIFY: the identifier in wParam, an NMHDR in lParam.
constexpr UINT WM_NOTIFY = 78;
constexpr UINT TCM_GETCURSEL = 4875;
constexpr UINT TCM_SETCURSEL = 4876;
constexpr UINT TCM_INSERTITEM = 4926;
constexpr UINT TCIF_TEXT = 1;
constexpr UINT TCN_SELCHANGE = static_cast<UINT>(-551);

struct TCITEM {
    UINT mask = 0;
    const WCHAR* pszText = nullptr;
};

struct NMHDR {
    HWND hwndFrom = nullptr;
    UINT idFrom = 0;
    UINT code = 0;
};
