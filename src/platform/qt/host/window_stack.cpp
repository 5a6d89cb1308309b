#include "platform/qt/host/window_stack.h"

#include "platform/qt/host/client_view.h"
#include "platform/qt/host/host_window.h"
#include "platform/qt/input/tap_guard.h"
#include "platform/qt/window/notices.h"

int Width(const RECT& frame) {
    return frame.right - frame.left;
}

int Height(const RECT& frame) {
    return frame.bottom - frame.top;
}

void PutOnTop(HWND window, const RECT& frame, ClientView* view) {
    window->frame = frame;
    window->surface = std::make_unique<Surface>(Width(frame), Height(frame));
    window->widget = view;
    window->toldPanelUp = Host().PanelUp();
    // The first one covers nothing that a tap could have been meant for.
    if (TopWindow() != nullptr) {
        GroundChanged();
    }
    Stack(window);
    Host().AddView(view);
    Host().ShowTitle(window->title);
}

void ReturnToTopWindow() {
    HWND window = TopWindow();
    if (window == nullptr) {
        return;
    }
    GroundChanged();
    Host().ShowTitle(window->title);
    if (window->toldPanelUp != Host().PanelUp()) {
        TellPanelChange(window, Host().PanelUp());
    }
    SetActive(window, true);
}

void MoveWindow(HWND window, const RECT& frame) {
    const bool resized =
        Width(frame) != Width(window->frame) || Height(frame) != Height(window->frame);
    window->frame = frame;
    if (resized) {
        window->surface->Resize(Width(frame), Height(frame));
    }
    Host().PlaceWidgets();
    if (resized) {
        SendMessageW(window, WM_SIZE, SIZE_RESTORED, MAKELPARAM(Width(frame), Height(frame)));
    }
}
