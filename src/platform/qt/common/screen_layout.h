// The handheld's screen in logical pixels: title bar, client area, menu bar, soft input panel.
#pragma once

#include "platform/types.h"

constexpr int screenWidth = 240;
constexpr int screenHeight = 320;
constexpr int titleBarHeight = 26;
constexpr int menuBarHeight = 26;
constexpr int softInputPanelHeight = 80;

constexpr RECT titleBarArea{0, 0, screenWidth, titleBarHeight};
constexpr RECT menuBarArea{0, screenHeight - menuBarHeight, screenWidth, screenHeight};
constexpr RECT softInputPanelArea{0, menuBarArea.top - softInputPanelHeight, screenWidth,
                                  menuBarArea.top};
// A dialog covers the menu bar, and the panel then stands on the screen's edge.
constexpr RECT softInputPanelAreaOfDialogs{0, screenHeight - softInputPanelHeight, screenWidth,
                                           screenHeight};

// Without the panel the visible desktop includes the menu bar; the panel stands on the menu bar,
// and the desktop then ends where the panel begins.
constexpr RECT VisibleDesktop(bool panelUp) {
    return {0, titleBarHeight, screenWidth, panelUp ? softInputPanelArea.top : screenHeight};
}

constexpr RECT DialogArea(bool panelUp) {
    return {0, titleBarHeight, screenWidth,
            panelUp ? softInputPanelAreaOfDialogs.top : screenHeight};
}

// What the visible desktop leaves to a window beside its menu bar.
constexpr RECT WindowArea(bool panelUp) {
    return {0, titleBarHeight, screenWidth, panelUp ? softInputPanelArea.top : menuBarArea.top};
}
