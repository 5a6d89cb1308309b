// The shell: soft input panel, menu bar, popups, full screen, tap-and-hold.
#include "platform/shell.h"

#include <QtWidgets/QMenu>
#include <algorithm>

#include "platform/menus.h"
#include "platform/qt/common/message_queue.h"
#include "platform/qt/common/screen_geometry.h"
#include "platform/qt/common/screen_layout.h"
#include "platform/qt/host/host_window.h"
#include "platform/qt/host/window_stack.h"
#include "platform/qt/input/stylus.h"
#include "platform/qt/screen/popups.h"
#include "platform/qt/window/end_request.h"

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

DWORD SHRecognizeGesture(SHRGINFO* gesture) {
    if (CurrentMessage().heldAtOnce) {
        return GN_CONTEXTMENU;
    }
    const POINT at = gesture->ptDown;
    const RECT pixel = OnScreen(gesture->hwndClient, {at.x, at.y, at.x + 1, at.y + 1});
    return AwaitHold(&Host(), ExactPlace(pixel).center()) ? GN_CONTEXTMENU : 0;
}

BOOL TrackPopupMenuEx(HMENU menu, UINT, int x, int y, HWND window, void*) {
    if (menu == nullptr || EndingAsked()) {
        return FALSE;
    }
    QMenu* popup = PopupOf(menu, window, &Host());
    const QRect screen = ExactPlace({0, 0, screenWidth, screenHeight}).toAlignedRect();
    const QSize room = screen.size() - popup->sizeHint();
    const QPoint wanted = ExactPlace({x, y, x, y}).topLeft().toPoint() - screen.topLeft();
    const QPoint corner(std::clamp(wanted.x(), 0, std::max(room.width(), 0)),
                        std::clamp(wanted.y(), 0, std::max(room.height(), 0)));
    popup->exec(Host().mapToGlobal(screen.topLeft() + corner));
    return TRUE;
}
