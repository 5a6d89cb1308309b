#include "keyboard/keyboard_visibility.h"

#include "app/layout.h"
#include "app/repaint.h"
#include "app/view.h"
#include "play/scroll_into_view.h"
#include "play/settings.h"

namespace {

void LayOutSmallBoard(HWND window) {
    ComputeLayout(window);
    PaintBoardAndSelection(window);
}

}  // namespace

void ShowKeyboard(HWND window) {
    if (LowerInputPanel()) {
        SHSipPreference(window, SIP_DOWN);
    }
    KeyboardVisible = 1;
    if (ChosenSize().FitsView()) {
        LayOutSmallBoard(window);
    } else {
        ReserveBelowView(window, keyboardReserve);
        ScrollIntoView();
    }
    ShowBoardAndKeyboard(window);
}

void HideKeyboard(HWND window) {
    KeyboardVisible = 0;
    LayOutWithoutKeyboard(window);
}

void LayOutWithoutKeyboard(HWND window) {
    if (ChosenSize().FitsView()) {
        LayOutSmallBoard(window);
    } else {
        KeepBottomEdge(window);
    }
    ShowBoard(window);
}
