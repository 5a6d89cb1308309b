// What stands behind a window handle.
#pragma once

#include <QtCore/QPointer>
#include <QtWidgets/QWidget>
#include <memory>
#include <string>

#include "platform/qt/surface/surface.h"
#include "platform/windows.h"

struct Window {
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

// A handle may outlive its window: every operation asks first.
bool IsLiveWindow(HWND window);

// The window that input and shell changes go to; null when there is none.
HWND TopWindow();
// The program's main window, whatever lies over it; null when there is none.
HWND BottomWindow();

class ClientView;
// A new window, not yet shown, over all others.
void PutOnTop(HWND window, const RECT& frame, ClientView* view);
// After a window over it has gone: the top window gets its title bar back, hears what happened to
// the soft input panel meanwhile, and becomes active.
void ReturnToTopWindow();
// Sends WM_SETTINGCHANGE.
void TellPanelChange(HWND window);

// Null for a window that is gone.
Surface* SurfaceOf(HWND window);

// Brings an area that was drawn on to the screen with the next round of the event loop.
void ShowSoon(HWND window, const RECT& area);
// Brings everything that was drawn to the screen now.
void ShowNow();

void ValidateWindow(HWND window);
// Sends the WM_PAINT that is due, if one is.
void PaintIfDue(HWND window);
void PaintAllDue();

// Sends WM_SIZE when the size changed. Content inside both sizes stays.
void MoveWindow(HWND window, const RECT& frame);

// Sends WM_ACTIVATE when the state changes.
void SetActive(HWND window, bool active);
