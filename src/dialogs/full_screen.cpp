#include "dialogs/full_screen.h"

#include "app/view.h"
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

void LowerPanel() {
    if (QuerySipInfo() && (SipInfo.fdwFlags & SIPF_ON) != 0) {
        SipInfo.fdwFlags &= ~SIPF_ON;
        SHSipInfo(SPI_SETSIPINFO, 0, &SipInfo, 0);
    }
}

void CloseDialogBox(HWND dialog) {
    SHFullScreen(dialog, SHFS_SHOWTASKBAR | SHFS_SHOWSIPBUTTON | SHFS_SHOWSTARTICON);
    EndDialog(dialog, 1);
}
