// Message boxes and dialog boxes.
#pragma once

#include "platform/resources.h"
#include "platform/types.h"

constexpr UINT MB_OK = 0;
constexpr UINT MB_YESNO = 4;
constexpr UINT MB_ICONQUESTION = 32;
constexpr UINT MB_ICONINFORMATION = 64;
constexpr UINT MB_DEFBUTTON2 = 256;

constexpr int IDOK = 1;
constexpr int IDCANCEL = 2;
constexpr int IDYES = 6;
constexpr int IDNO = 7;

// Modal. Escape and closing the box answer IDOK for MB_OK and IDNO for MB_YESNO; Enter answers
// IDYES for MB_YESNO, and IDNO with MB_DEFBUTTON2.
int MessageBoxW(HWND owner, const WCHAR* text, const WCHAR* title, UINT style);

// Answers a message with something other than 0, or leaves it to the dialog itself with 0.
using DLGPROC = LRESULT (*)(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);

constexpr UINT WM_INITDIALOG = 272;
// Asked when the dialog and its controls are drawn; the answer is a brush, or 0 for the usual one.
// The control is the lParam. No context is given: only the brush counts.
constexpr UINT WM_CTLCOLORBTN = 309;
constexpr UINT WM_CTLCOLORDLG = 310;
constexpr UINT WM_CTLCOLORSTATIC = 312;

// Opens a modal dialog over its owner and returns EndDialog's result; -1 when it could not be
// opened or the program was asked to end. The owner gets no input meanwhile, and what had been
// queued for it is thrown away. Tab and the arrows walk through the controls; Enter presses the
// default button, or sends command 1 when there is none; Escape sends command 1. The first control
// gets the focus unless WM_INITDIALOG gives it to another.
LRESULT DialogBoxIndirectParamW(HINSTANCE instance, HGLOBAL resource, HWND owner, DLGPROC procedure,
                                LPARAM parameter);
// Hides the dialog, which is gone when its procedure has returned. FALSE for what is no open
// dialog. Takes the handle of the colour chooser's hook, too.
BOOL EndDialog(HWND dialog, LRESULT result);

// Null when the dialog has no such control.
HWND GetDlgItem(HWND dialog, int id);
LRESULT SendDlgItemMessageW(HWND dialog, int id, UINT message, WPARAM wParam, LPARAM lParam);
