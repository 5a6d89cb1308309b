// What all dialogs have in common: modal, over the whole screen, over the main window.
#pragma once

#include "platform/dialogs.h"
#include "platform/shell.h"

constexpr DWORD wholeScreen = SHIDIF_DONEBUTTON | SHIDIF_SIZEDLGFULLSCREEN | SHIDIF_SIPDOWN;
constexpr DWORD wholeScreenWithoutMenuBar =
    SHIDIF_DONEBUTTON | SHIDIF_SIPDOWN | SHIDIF_FULLSCREENNOMENUBAR;

// Runs the dialog until it is closed.
void RunDialogBox(HWND owner, int id, DLGPROC procedure);

// The end of every WM_INITDIALOG.
void FillScreen(HWND dialog, DWORD flags);
// Takes the soft input panel's button away, as every open dialog does.
void HidePanelButton(HWND dialog);

void CloseDialogBox(HWND dialog);

// The control's font in bold; the caller's to delete after the dialog.
HFONT MakeBoldFont(HWND dialog, int control);
void SetControlFont(HWND dialog, int control, HFONT font);
