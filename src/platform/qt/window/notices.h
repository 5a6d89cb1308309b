// What the handheld tells a window without having been asked: to paint itself, that it has become
// active, that the soft input panel has moved.
#pragma once

#include "platform/types.h"

// Sends the WM_PAINT that is due, if one is.
void PaintIfDue(HWND window);
void PaintAllDue();

// Sends WM_ACTIVATE when the state changes.
void SetActive(HWND window, bool active);

// Sends WM_SETTINGCHANGE.
void TellPanelChange(HWND window, bool panelUp);
