#include "app/stylus_input.h"

#include "app/drag_scroll.h"
#include "app/view.h"
#include "board/board_tap.h"
#include "keyboard/keyboard_tap.h"
#include "keyboard/keyboard_visibility.h"
#include "model/puzzle.h"
#include "platform/menus.h"
#include "platform/resources.h"
#include "platform/windows.h"
#include "play/scroll_into_view.h"
#include "play/settings.h"
#include "resources/ids.h"

namespace {

bool InBoardView(HWND window, POINT point) {
    const RECT view = BoardViewArea(window);
    return PtInRect(&view, point) != FALSE;
}

// The left outline of the board and everything beside it is no part of a small board.
bool OnBoard(POINT point) {
    return point.x > BoardLeft && point.x < BoardLeft + PuzzleWidth * CellSize && point.y > 0 &&
           point.y <= PuzzleHeight * CellSize;
}

// False when nothing was tapped.
bool TapBoard(HWND window, LPARAM point) {
    if (ChosenSize().FitsView()) {
        if (!OnBoard(SignedPoint(point))) {
            return false;
        }
        HandleBoardTap(window, point);
    } else {
        HandleBoardTap(window, point);
        ScrollIntoView();
    }
    return true;
}

bool IsTapAndHold(HWND window, LPARAM point) {
    SHRGINFO gesture;
    gesture.cbSize = sizeof gesture;
    gesture.hwndClient = window;
    gesture.ptDown = {LOWORD(static_cast<WPARAM>(point)), HIWORD(static_cast<WPARAM>(point))};
    gesture.dwFlags = SHRG_RETURNCMD;
    return SHRecognizeGesture(&gesture) == GN_CONTEXTMENU;
}

void HandleTapAndHold(HWND window, LPARAM point) {
    StylusNow = SignedPoint(point);
    TapHoldActive = 1;
    if (InBoardView(window, StylusNow)) {
        TapBoard(window, point);
    }
    TapHoldActive = 0;
    CopyViewToScreen(window);
    const auto packed = static_cast<WPARAM>(point);
    TrackPopupMenuEx(GetSubMenu(LoadMenuW(&programResources, menuContext), 0), 0, LOWORD(packed),
                     HIWORD(packed), window, nullptr);
}

// The area reaches further down than the picture: a tap below it is a tap beside a key.
bool OnKeyboard(POINT point) {
    constexpr RECT tapArea{0, 225, 240, 298};
    return KeyboardVisible == 1 && PtInRect(&tapArea, point);
}

void TapKeyboard(HWND window, LPARAM point) {
    KeyboardTap(window, point);
    if (KeyboardVisible != 1) {
        LayOutWithoutKeyboard(window);
    }
}

}  // namespace

void HandlePenDown(HWND window, LPARAM point) {
    if (IsTapAndHold(window, point)) {
        HandleTapAndHold(window, point);
    }
    StylusLast = SignedPoint(point);
}

void HandlePenMove(HWND window, LPARAM point) {
    StylusNow = SignedPoint(point);
    if (BoardExceedsView(window) && InBoardView(window, StylusNow)) {
        DragScroll(window);
    }
}

void HandlePenUp(HWND window, LPARAM point) {
    StylusNow = SignedPoint(point);
    if (!InBoardView(window, StylusNow)) {
        if (OnKeyboard(StylusNow)) {
            TapKeyboard(window, point);
        }
    } else if (TapBoard(window, point)) {
        CopyViewToScreen(window);
    }
}
