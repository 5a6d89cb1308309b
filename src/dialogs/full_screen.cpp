#include "dialogs/full_screen.h"

#include "platform/controls.h"
#include "platform/drawing.h"
#include "platform/resources.h"
#include "platform/windows.h"

void RunDialogBox(HWND owner, int id, DLGPROC procedure) {
    HRSRC found = FindResourceW(&programResources, id, RT_DIALOG);
    DialogBoxIndirectParamW(&programResources, LoadResource(&programResources, found), owner,
                            procedure, 0);
}

void FillScreen(HWND dialog, DWORD flags) {
    SHINITDLGINFO request{SHIDIM_FLAGS, dialog, flags};
    SHInitDialog(&request);
    SetForegroundWindow(dialog);
    HidePanelButton(dialog);
}

void HidePanelButton(HWND dialog) {
    SHFullScreen(dialog, SHFS_SHOWTASKBAR | SHFS_HIDESIPBUTTON);
}

void CloseDialogBox(HWND dialog) {
    SHFullScreen(dialog, SHFS_SHOWTASKBAR | SHFS_SHOWSIPBUTTON | SHFS_SHOWSTARTICON);
    EndDialog(dialog, 1);
}

HFONT MakeBoldFont(HWND dialog, int control) {
    constexpr LONG bold = 700;
    const LRESULT font = SendDlgItemMessageW(dialog, control, WM_GETFONT, 0, 0);
    LOGFONTW description;
    GetObjectW(reinterpret_cast<HFONT>(font), sizeof description, &description);
    description.lfWeight = bold;
    return CreateFontIndirectW(&description);
}

void SetControlFont(HWND dialog, int control, HFONT font) {
    SendDlgItemMessageW(dialog, control, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
}
