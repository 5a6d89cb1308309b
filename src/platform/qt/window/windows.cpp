// Window classes and windows.
//
// Supported: top-level windows at a place on the handheld's screen. Left out: child windows,
// regions, z-order beyond "the newest is on top", background erasing (a new surface is white).
#include "platform/windows.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <algorithm>
#include <map>
#include <vector>

#include "platform/qt/common/message_queue.h"
#include "platform/qt/common/screen_layout.h"
#include "platform/qt/controls/control.h"
#include "platform/qt/input/tap_guard.h"
#include "platform/qt/process/single_instance.h"
#include "platform/qt/window/client_view.h"
#include "platform/qt/window/endings.h"
#include "platform/qt/window/host_window.h"
#include "platform/qt/window/window.h"
#include "platform/shell.h"

namespace {

std::map<std::u16string, WNDCLASSW> classes;

// In the order of creation: the last one is on top.
std::vector<HWND> windows;

ATOM lastAtom = 0;

RECT StartFrame(int x, int y, int width, int height) {
    const int left = x == CW_USEDEFAULT ? 0 : x;
    const int top = y == CW_USEDEFAULT ? titleBarHeight : y;
    return {left, top, left + width, top + height};
}

int Width(const RECT& frame) {
    return frame.right - frame.left;
}

int Height(const RECT& frame) {
    return frame.bottom - frame.top;
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
    windows.erase(std::find(windows.begin(), windows.end(), window));
    DropMessagesOf(window);
    delete window->widget;
    delete window;
}

}  // namespace

bool IsLiveWindow(HWND window) {
    return std::find(windows.begin(), windows.end(), window) != windows.end() ||
           AsControl(window) != nullptr;
}

HWND TopWindow() {
    return windows.empty() ? nullptr : windows.back();
}

HWND BottomWindow() {
    return windows.empty() ? nullptr : windows.front();
}

void PutOnTop(HWND window, const RECT& frame, ClientView* view) {
    window->frame = frame;
    window->surface = std::make_unique<Surface>(Width(frame), Height(frame));
    window->widget = view;
    window->toldPanelUp = Host().PanelUp();
    // The first one covers nothing that a tap could have been meant for.
    if (!windows.empty()) {
        GroundChanged();
    }
    windows.push_back(window);
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
        TellPanelChange(window);
    }
    SetActive(window, true);
}

void TellPanelChange(HWND window) {
    if (IsLiveWindow(window)) {
        window->toldPanelUp = Host().PanelUp();
        SendMessageW(window, WM_SETTINGCHANGE, SPI_SETSIPINFO, 0);
    }
}

Surface* SurfaceOf(HWND window) {
    return IsLiveWindow(window) ? window->surface.get() : nullptr;
}

void ShowSoon(HWND window, const RECT& area) {
    if (auto* view = qobject_cast<ClientView*>(window->widget.data())) {
        view->ShowArea(area);
    }
}

void ValidateWindow(HWND window) {
    if (IsLiveWindow(window)) {
        window->paintDue = false;
    }
}

void PaintIfDue(HWND window) {
    if (IsLiveWindow(window) && window->visible && window->paintDue) {
        window->paintDue = false;
        SendMessageW(window, WM_PAINT, 0, 0);
    }
}

void PaintAllDue() {
    const std::vector<HWND> present = windows;
    for (HWND window : present) {
        PaintIfDue(window);
    }
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

void SetActive(HWND window, bool active) {
    if (IsLiveWindow(window) && window->active != active) {
        window->active = active;
        SendMessageW(window, WM_ACTIVATE, active ? WA_ACTIVE : WA_INACTIVE, 0);
    }
}

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
    if (windows.empty()) {
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

HWND FindWindowW(const WCHAR* className, const WCHAR* title) {
    for (HWND window : windows) {
        if (window->className == className && window->title == title) {
            return window;
        }
    }
    return ClaimInstance(className) ? nullptr : OtherInstance();
}

BOOL SetForegroundWindow(HWND window) {
    // The lowest bit asks for the windows it owns, too; on one screen they come along anyway.
    auto* plain =
        reinterpret_cast<HWND>(reinterpret_cast<std::uintptr_t>(window) & ~std::uintptr_t{1});
    if (plain == OtherInstance()) {
        return TRUE;  // it came forward when it was found
    }
    if (!IsLiveWindow(plain)) {
        return FALSE;
    }
    Host().ComeForward();
    // What lies over it comes along and stays over it.
    SetActive(TopWindow(), true);
    return TRUE;
}

void ShowNow() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateRequest);
}
