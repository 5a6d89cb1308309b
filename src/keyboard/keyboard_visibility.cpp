#include "keyboard/keyboard_visibility.h"

#include "app/layout.h"
#include "app/view.h"
#include "board/board_painter.h"
#include "board/clue_bar.h"
#include "board/word_highlight.h"
#include "keyboard/keyboard_drawing.h"
#include "platform/windows.h"
#include "play/scroll_into_view.h"
#include "play/settings.h"

namespace {

void LowerInputPanel(HWND window) {
    if (QuerySipInfo() && (SipInfo.fdwFlags & SIPF_ON) != 0) {
        SipInfo.fdwFlags &= ~SIPF_ON;
        SHSipInfo(SPI_SETSIPINFO, 0, &SipInfo, 0);
        SHSipPreference(window, SIP_DOWN);
    }
}

void LayOutSmallBoard(HWND window) {
    ComputeLayout(window);
    PaintBoard(window);
    PaintWordHighlight(window);
}

void ShrinkView(HWND window) {
    RECT client;
    GetClientRect(window, &client);
    BottomReserve = keyboardReserve;
    ViewHeight = client.bottom - keyboardReserve;
    ScrollIntoView();
}

}  // namespace

void ShowKeyboard(HWND window) {
    LowerInputPanel(window);
    KeyboardVisible = 1;
    if (Magnification.Small == 1) {
        LayOutSmallBoard(window);
    } else {
        ShrinkView(window);
    }
    PaintClueBar(window);
    DrawKeyboard(window);
    CopyViewToScreen(window);
}

void HideKeyboard(HWND window) {
    KeyboardVisible = 0;
    LayOutWithoutKeyboard(window);
}

void LayOutWithoutKeyboard(HWND window) {
    if (Magnification.Small == 1) {
        LayOutSmallBoard(window);
    } else {
        KeepBottomEdge(window);
    }
    PaintClueBar(window);
    CopyViewToScreen(window);
}
