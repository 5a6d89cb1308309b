#include "platform/qt/window/notices.h"

#include <vector>

#include "platform/qt/window/window.h"
#include "platform/shell.h"

void PaintIfDue(HWND window) {
    if (IsLiveWindow(window) && window->visible && window->paintDue) {
        window->paintDue = false;
        SendMessageW(window, WM_PAINT, 0, 0);
    }
}

void PaintAllDue() {
    // A window may come or go while another paints itself.
    const std::vector<HWND> present = StackedWindows();
    for (HWND window : present) {
        PaintIfDue(window);
    }
}

void SetActive(HWND window, bool active) {
    if (IsLiveWindow(window) && window->active != active) {
        window->active = active;
        SendMessageW(window, WM_ACTIVATE, active ? WA_ACTIVE : WA_INACTIVE, 0);
    }
}

void TellPanelChange(HWND window, bool panelUp) {
    if (IsLiveWindow(window)) {
        window->toldPanelUp = panelUp;
        SendMessageW(window, WM_SETTINGCHANGE, SPI_SETSIPINFO, 0);
    }
}
