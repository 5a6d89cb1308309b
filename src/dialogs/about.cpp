#include "dialogs/about.h"

#include "app/view.h"
#include "dialogs/about_drawing.h"
#include "dialogs/full_screen.h"
#include "dialogs/help_programs.h"
#include "platform/drawing.h"
#include "platform/windows.h"
#include "resources/ids.h"

namespace {

constexpr WPARAM animationTimer = 101;
constexpr UINT framePeriod = 25;  // milliseconds

struct Link {
    RECT area;
    void (*open)();
};

constexpr Link links[] = {
    {{65, 187, 178, 198}, [] { OpenHelp(u"OvelQuadrel.htm#contact_us"); }},
    {{44, 202, 196, 213}, [] { OpenHelp(u"OvelQuadrel.htm#trademarks_copyrights"); }},
    {{52, 221, 189, 229}, OpenWebSite},
};

void OpenAbout(HWND dialog) {
    LowerInputPanel();
    SetTimer(dialog, animationTimer, framePeriod, nullptr);
    AboutAnimating = 1;
    FillScreen(dialog, wholeScreenWithoutMenuBar);
}

void Animate(HWND dialog) {
    if (LogoIsTogether()) {
        SendMessageW(dialog, WM_LBUTTONUP, 0, 0);
    } else {
        DrawAboutFrame(dialog);
    }
}

void EndAnimation(HWND dialog) {
    KillTimer(dialog, animationTimer);
    AboutAnimating = 0;
    DrawAboutPicture(dialog);
}

void OpenLinkAt(POINT point) {
    for (const Link& link : links) {
        if (PtInRect(&link.area, point)) {
            link.open();
        }
    }
}

void HandleTap(HWND dialog, LPARAM where) {
    if (AboutAnimating == 1) {
        EndAnimation(dialog);
        return;
    }
    OpenLinkAt(SignedPoint(where));
}

void RestorePicture(HWND dialog) {
    if (AboutAnimating == 0) {
        HidePanelButton(dialog);
        DrawAboutPicture(dialog);
    }
}

LRESULT HandleAboutCommand(HWND dialog, int command) {
    if (command != controlAboutClose && command != IDOK) {
        return FALSE;
    }
    KillTimer(dialog, animationTimer);
    CloseDialogBox(dialog);
    return TRUE;
}

LRESULT AboutProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_INITDIALOG: OpenAbout(dialog); return TRUE;
        case WM_TIMER: Animate(dialog); return TRUE;
        case WM_LBUTTONUP: HandleTap(dialog, lParam); return TRUE;
        case WM_ACTIVATE: RestorePicture(dialog); return TRUE;
        case WM_CTLCOLORBTN:
        case WM_CTLCOLORDLG: return reinterpret_cast<LRESULT>(GetStockObject(WHITE_BRUSH));
        case WM_COMMAND: return HandleAboutCommand(dialog, LOWORD(wParam));
        default: return FALSE;
    }
}

}  // namespace

void ShowAbout(HWND owner) {
    RunDialogBox(owner, dialogAbout, AboutProc);
}
