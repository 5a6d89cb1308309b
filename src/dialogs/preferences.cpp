#include "dialogs/preferences.h"

#include "app/menu_checks.h"
#include "app/view.h"
#include "dialogs/board_colors.h"
#include "dialogs/full_screen.h"
#include "platform/controls.h"
#include "platform/drawing.h"
#include "platform/windows.h"
#include "play/settings.h"
#include "resources/ids.h"

namespace {

// Live while the dialog is open.
HFONT captionFont = nullptr;
HBRUSH squareBrush = nullptr;
HBRUSH backgroundBrush = nullptr;

void MakeCaptionsBold(HWND dialog) {
    captionFont = MakeBoldFont(dialog, controlSizeGroup);
    for (int group : {controlSizeGroup, controlToggleGroup, controlColorGroup}) {
        SetControlFont(dialog, group, captionFont);
    }
}

void SetCheck(HWND dialog, int control, int setting) {
    const WPARAM state = setting == 1 ? BST_CHECKED : BST_UNCHECKED;
    SendDlgItemMessageW(dialog, control, BM_SETCHECK, state, 0);
}

bool IsChecked(HWND dialog, int control) {
    return SendDlgItemMessageW(dialog, control, BM_GETCHECK, 0, 0) == BST_CHECKED;
}

void ShowSettings(HWND dialog) {
    for (const BoardSize& size : boardSizes) {
        SetCheck(dialog, size.control, Magnification.*size.flag);
    }
    SetCheck(dialog, controlAutoSkip, AutoSkip);
    SetCheck(dialog, controlShowNumbers, ShowNumbers);
}

void TakeSettings(HWND dialog) {
    for (const BoardSize& size : boardSizes) {
        if (IsChecked(dialog, size.control)) {
            ChooseSize(size);
        }
    }
    AutoSkip = IsChecked(dialog, controlAutoSkip) ? 1 : 0;
    ShowNumbers = IsChecked(dialog, controlShowNumbers) ? 1 : 0;
    UpdateMenuChecks();
}

void OpenPreferences(HWND dialog) {
    MakeCaptionsBold(dialog);
    ShowSettings(dialog);
    FillScreen(dialog, wholeScreen);
}

LRESULT RenewBrush(HBRUSH& brush, COLORREF color) {
    DeleteObject(brush);
    brush = CreateSolidBrush(color);
    return reinterpret_cast<LRESULT>(brush);
}

LRESULT ButtonBrush(HWND dialog, HWND button) {
    if (button == GetDlgItem(dialog, controlSquareColor)) {
        return RenewBrush(squareBrush, SquareColor);
    }
    if (button == GetDlgItem(dialog, controlBackgroundColor)) {
        return RenewBrush(backgroundBrush, BackgroundColor);
    }
    return 0;
}

LRESULT WhiteBrush() {
    return reinterpret_cast<LRESULT>(GetStockObject(WHITE_BRUSH));
}

void HandlePreferencesCommand(HWND dialog, int command) {
    switch (command) {
        case controlSquareColor: PickSquareColor(dialog); break;
        case controlBackgroundColor: PickBackgroundColor(dialog); break;
        case IDOK:
            TakeSettings(dialog);
            CloseDialogBox(dialog);
            break;
        default: break;
    }
}

void FollowActivation(HWND dialog, WPARAM wParam, LPARAM lParam) {
    if (LOWORD(wParam) != WA_INACTIVE) {
        ShellActivateInfo = {};
        SHHandleWMActivate(dialog, wParam, lParam, &ShellActivateInfo, 0);
    }
}

void FollowInputPanel(HWND dialog, WPARAM wParam, LPARAM lParam) {
    ShellActivateInfo = {};
    SHHandleWMSettingChange(dialog, wParam, lParam, &ShellActivateInfo);
}

LRESULT PreferencesProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_INITDIALOG: OpenPreferences(dialog); return TRUE;
        case WM_COMMAND: HandlePreferencesCommand(dialog, LOWORD(wParam)); return TRUE;
        case WM_CTLCOLORBTN: return ButtonBrush(dialog, reinterpret_cast<HWND>(lParam));
        case WM_CTLCOLORDLG:
        case WM_CTLCOLORSTATIC: return WhiteBrush();
        case WM_ACTIVATE: FollowActivation(dialog, wParam, lParam); return FALSE;
        case WM_SETTINGCHANGE: FollowInputPanel(dialog, wParam, lParam); return FALSE;
        default: return FALSE;
    }
}

}  // namespace

void ShowPreferences(HWND owner) {
    RunDialogBox(owner, dialogPreferences, PreferencesProc);
    for (HGDIOBJ* object : {&captionFont, &squareBrush, &backgroundBrush}) {
        DeleteObject(*object);
        *object = nullptr;
    }
}
