// The look of everything in a dialog: of the handheld's screen, not of the desktop.
#pragma once

#include <QtGui/QPalette>
#include <QtWidgets/QStyle>

// The toolkit's plain style, whatever the desktop has set. Made with the first dialog.
QStyle* DialogStyle();

// Dark on white, whatever the desktop prefers.
QPalette DialogPalette();

// A style sheet whose borders, boxes, tabs and scroll bars grow with the screen.
QString DialogStyleSheet(double magnification);

// Logical pixels.
constexpr int scrollBarExtent = 13;
