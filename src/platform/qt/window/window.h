// What stands behind a window handle, and which windows there are.
#pragma once

#include <QtCore/QPointer>
#include <QtWidgets/QWidget>
#include <memory>
#include <string>
#include <vector>

#include "platform/qt/surface/surface.h"
#include "platform/windows.h"

struct Window {
    virtual ~Window() = default;

    std::u16string className;
    std::u16string title;
    WNDPROC procedure = nullptr;
    RECT frame;  // on the handheld's screen, in logical pixels
    bool visible = false;
    bool active = false;
    bool paintDue = false;
    bool isDialog = false;
    bool toldPanelUp = false;  // the soft input panel as the window knows it
    std::unique_ptr<Surface> surface;
    QPointer<QWidget> widget;  // shows the window; owned by the host window
};

// Windows on the screen, in the order of creation: the last one is on top.
const std::vector<HWND>& StackedWindows();
void Stack(HWND window);
void Unstack(HWND window);
// The window that input and shell changes go to; null when there is none.
HWND TopWindow();
// The program's main window, whatever lies over it; null when there is none.
HWND BottomWindow();

// The controls of dialogs are windows, too, but none of the stack.
void AddChildWindow(HWND child);
void RemoveChildWindow(HWND child);

// An area of the window, on the handheld's screen.
RECT OnScreen(HWND window, const RECT& area);

// A handle may outlive its window: every operation asks first.
bool IsLiveWindow(HWND window);

// The menu bar's handle is not a window of the program; it takes no messages but the bar's own, for
// which the host window gives it a procedure.
HWND MenuBarHandle();
bool IsMenuBar(HWND window);

// Brings everything that was drawn to the screen now.
void ShowNow();
