#include "platform/qt/window/window.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <algorithm>

namespace {

std::vector<HWND> stack;
std::vector<HWND> children;

bool Holds(const std::vector<HWND>& windows, HWND window) {
    return std::find(windows.begin(), windows.end(), window) != windows.end();
}

}  // namespace

const std::vector<HWND>& StackedWindows() {
    return stack;
}

void Stack(HWND window) {
    stack.push_back(window);
}

void Unstack(HWND window) {
    std::erase(stack, window);
}

HWND TopWindow() {
    return stack.empty() ? nullptr : stack.back();
}

HWND BottomWindow() {
    return stack.empty() ? nullptr : stack.front();
}

void AddChildWindow(HWND child) {
    children.push_back(child);
}

void RemoveChildWindow(HWND child) {
    std::erase(children, child);
}

RECT OnScreen(HWND window, const RECT& area) {
    const RECT& frame = window->frame;
    return {frame.left + area.left, frame.top + area.top, frame.left + area.right,
            frame.top + area.bottom};
}

bool IsLiveWindow(HWND window) {
    return Holds(stack, window) || Holds(children, window);
}

HWND MenuBarHandle() {
    static Window handle;
    return &handle;
}

bool IsMenuBar(HWND window) {
    return window == MenuBarHandle();
}

void ShowNow() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateRequest);
}
