// Menus as the toolkit's own popups.
#pragma once

#include "platform/types.h"

class QMenu;
class QWidget;

// Built once, for the host's window; its text is sized with the screen. A chosen item's command is
// queued for the program's window.
QMenu* PopupOf(HMENU menu, HWND window, QWidget* host);
