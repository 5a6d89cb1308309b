// The shell: soft input panel, menu bar, full screen. Tap-and-hold is in stylus.cpp.
#include "platform/shell.h"

#include "platform/qt/window/host_window.h"
#include "platform/qt/window/window.h"

BOOL SHSipInfo(UINT action, UINT, void* record, UINT) {
    auto* info = static_cast<SIPINFO*>(record);
    if (info == nullptr || info->cbSize != sizeof(SIPINFO)) {
        return FALSE;
    }
    if (action == SPI_SETSIPINFO) {
        Host().SetPanelUp((info->fdwFlags & SIPF_ON) != 0);
        return TRUE;
    }
    if (action != SPI_GETSIPINFO) {
        return FALSE;
    }
    const bool up = Host().PanelUp();
    info->fdwFlags = up ? SIPF_ON : 0;
    info->rcVisibleDesktop = VisibleDesktop(up);
    info->rcSipRect = softInputPanelArea;
    return TRUE;
}

BOOL SHSipPreference(HWND window, UINT state) {
    Host().SetPanelUp(state == SIP_UP);
    return IsLiveWindow(window);
}

BOOL SHHandleWMSettingChange(HWND window, WPARAM, LPARAM, SHACTIVATEINFO*) {
    if (!IsLiveWindow(window)) {
        return FALSE;
    }
    const bool up = Host().PanelUp();
    MoveWindow(window, window->isDialog ? DialogArea(up) : WindowArea(up));
    return TRUE;
}

BOOL SHInitDialog(SHINITDLGINFO* request) {
    if (!IsLiveWindow(request->hDlg) || (request->dwMask & SHIDIM_FLAGS) == 0) {
        return FALSE;
    }
    if ((request->dwFlags & SHIDIF_SIPDOWN) != 0) {
        Host().SetPanelUp(false);
    }
    if ((request->dwFlags & (SHIDIF_SIZEDLGFULLSCREEN | SHIDIF_FULLSCREENNOMENUBAR)) != 0) {
        MoveWindow(request->hDlg, DialogArea(Host().PanelUp()));
    }
    Host().ShowDoneButton((request->dwFlags & SHIDIF_DONEBUTTON) != 0);
    return TRUE;
}

BOOL SHHandleWMActivate(HWND window, WPARAM, LPARAM, SHACTIVATEINFO*, DWORD) {
    return IsLiveWindow(window);
}

BOOL SHFullScreen(HWND window, DWORD state) {
    if ((state & SHFS_SHOWSIPBUTTON) != 0) {
        Host().ShowPanelButton(true);
    } else if ((state & SHFS_HIDESIPBUTTON) != 0) {
        Host().ShowPanelButton(false);
    }
    return IsLiveWindow(window);
}

BOOL SHCreateMenuBar(SHMENUBARINFO* request) {
    request->hwndMB = Host().OpenMenuBar(request->hwndParent, request->hInstRes,
                                         static_cast<int>(request->nToolBarId));
    return request->hwndMB != nullptr;
}
