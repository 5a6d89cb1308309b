// Window classes and windows.
//
// Supported: top-level windows at a place on the handheld's screen. Left out: child windows (a
// dialog makes its controls itself), regions, z-order beyond "the newest is on top", background
// erasing (a new surface is white).
#include "platform/windows.h"

#include <map>
#include <string>

#include "platform/controls.h"
#include "platform/qt/common/message_queue.h"
#include "platform/qt/common/screen_layout.h"
#include "platform/qt/host/client_view.h"
#include "platform/qt/host/host_window.h"
#include "platform/qt/host/window_stack.h"
#include "platform/qt/window/end_request.h"
#include "platform/qt/window/notices.h"
#include "platform/qt/window/timers.h"

namespace {

std::map<std::u16string, WNDCLASSW> classes;

ATOM lastAtom = 0;

RECT StartFrame(int x, int y, int width, int height) {
    const int left = x == CW_USEDEFAULT ? 0 : x;
    const int top = y == CW_USEDEFAULT ? titleBarHeight : y;
    return {left, top, left + width, top + height};
}

HWND OpenWindow(const WNDCLASSW& windowClass, const WCHAR* title, const RECT& frame) {
    auto* window = new Window;
    window->className = windowClass.lpszClassName;
    window->title = title;
    window->procedure = windowClass.lpfnWndProc;
    PutOnTop(window, frame, new ClientView(&Host(), window));
    return window;
}

void ForgetWindow(HWND window) {
    Unstack(window);
    DropMessagesOf(window);
    StopTimersOf(window);
    delete window->widget;
    delete window;
}

}  // namespace

ATOM RegisterClassW(const WNDCLASSW* windowClass) {
    if (windowClass->lpszClassName == nullptr || windowClass->lpfnWndProc == nullptr) {
        return 0;
    }
    const std::u16string name = windowClass->lpszClassName;
    classes[name] = *windowClass;
    classes[name].lpszClassName = classes.find(name)->first.c_str();
    return ++lastAtom;
}

HWND CreateWindowExW(DWORD, const WCHAR* className, const WCHAR* title, DWORD style, int x, int y,
                     int width, int height, HWND, HMENU, HINSTANCE, void*) {
    const auto windowClass = classes.find(className);
    if (windowClass == classes.end()) {
        return nullptr;
    }
    HWND window = OpenWindow(windowClass->second, title, StartFrame(x, y, width, height));
    Host().SetLook(window->title, windowClass->second.hIcon);
    SendMessageW(window, WM_CREATE, 0, 0);
    if (IsLiveWindow(window) && (style & WS_VISIBLE) != 0) {
        ShowWindow(window, SW_SHOW);
    }
    return IsLiveWindow(window) ? window : nullptr;
}

BOOL DestroyWindow(HWND window) {
    if (IsMenuBar(window)) {
        Host().CloseMenuBar();
        return TRUE;
    }
    if (!IsLiveWindow(window)) {
        return FALSE;
    }
    SendMessageW(window, WM_DESTROY, 0, 0);
    if (IsLiveWindow(window)) {
        ForgetWindow(window);
    }
    if (TopWindow() == nullptr) {
        ForgetEnding();
        Host().hide();
    }
    return TRUE;
}

BOOL ShowWindow(HWND window, int showCommand) {
    if (!IsLiveWindow(window)) {
        return FALSE;
    }
    const bool wasVisible = window->visible;
    window->visible = showCommand != SW_HIDE;
    window->paintDue |= window->visible && !wasVisible;
    if (window->widget != nullptr) {
        window->widget->setVisible(window->visible);
    }
    if (window->visible && !wasVisible) {
        Host().ShowIfHidden();
        window->widget->setFocus();
        SetActive(window, true);
    }
    return wasVisible;
}

BOOL UpdateWindow(HWND window) {
    PaintIfDue(window);
    ShowNow();
    return IsLiveWindow(window);
}

BOOL GetClientRect(HWND window, RECT* rectangle) {
    if (!IsLiveWindow(window)) {
        return FALSE;
    }
    *rectangle = {0, 0, Width(window->frame), Height(window->frame)};
    return TRUE;
}

void SetFocus(HWND window) {
    if (IsLiveWindow(window) && window->widget != nullptr) {
        window->widget->setFocus();
    }
}

LRESULT DefWindowProcW(HWND window, UINT message, WPARAM, LPARAM) {
    if (message == WM_CLOSE) {
        DestroyWindow(window);
    }
    return 0;
}

BOOL EnableWindow(HWND window, BOOL enabled) {
    if (!IsLiveWindow(window) || window->widget == nullptr) {
        return FALSE;
    }
    const bool wasDisabled = !window->widget->isEnabled();
    window->widget->setEnabled(enabled != FALSE);
    return wasDisabled;
}
