#include "dialogs/board_colors.h"

#include "platform/dialogs.h"
#include "platform/resources.h"
#include "platform/windows.h"
#include "play/settings.h"

namespace {

// Calm colours to start with, light ones for letters and dark ones for squares. The player's own
// take their place for the rest of the run.
constexpr COLORREF startColors[] = {
    RGB(255, 255, 255), RGB(250, 246, 236), RGB(240, 246, 252), RGB(238, 247, 238),
    RGB(253, 243, 231), RGB(247, 240, 250), RGB(242, 242, 240), RGB(255, 250, 214),
    RGB(0, 0, 0),       RGB(45, 55, 66),    RGB(31, 58, 95),    RGB(36, 74, 58),
    RGB(92, 62, 38),    RGB(74, 44, 84),    RGB(110, 36, 44),   RGB(96, 96, 96),
};
COLORREF customColors[std::size(startColors)];

UINT HookChooser(HWND chooser, UINT message, WPARAM wParam) {
    const bool closes = message == WM_CLOSE || message == WM_QUIT ||
                        (message == WM_COMMAND && LOWORD(wParam) == IDOK);
    if (closes) {
        EndDialog(chooser, 1);
    } else if (message != WM_COMMAND) {
        SetFocus(chooser);
    }
    return 0;
}

UINT SquareColorHook(HWND chooser, UINT message, WPARAM wParam, LPARAM) {
    return HookChooser(chooser, message, wParam);
}

UINT BackgroundColorHook(HWND chooser, UINT message, WPARAM wParam, LPARAM) {
    return HookChooser(chooser, message, wParam);
}

CHOOSECOLOR NewChooser(COLORREF color, CCHOOKPROC hook) {
    constexpr DWORD recordSize = 36;
    return {recordSize,   nullptr,       &programResources,          color,
            customColors, CC_ENABLEHOOK, static_cast<LPARAM>(color), hook,
            nullptr};
}

void Pick(HWND dialog, CHOOSECOLOR& chooser, COLORREF& color) {
    chooser.hwndOwner = dialog;
    chooser.rgbResult = color;
    ChooseColor(&chooser);
    color = chooser.rgbResult;
    UpdateWindow(dialog);
}

}  // namespace

void SetUpColorChoosers() {
    std::copy(std::begin(startColors), std::end(startColors), customColors);
    BackgroundColor = RGB(255, 255, 255);
    SquareColor = RGB(0, 0, 0);
    BackgroundColorChooser = NewChooser(BackgroundColor, BackgroundColorHook);
    SquareColorChooser = NewChooser(SquareColor, SquareColorHook);
}

void PickSquareColor(HWND dialog) {
    Pick(dialog, SquareColorChooser, SquareColor);
}

void PickBackgroundColor(HWND dialog) {
    Pick(dialog, BackgroundColorChooser, BackgroundColor);
}
