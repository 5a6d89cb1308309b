// The look of everything in a dialog: of the handheld's screen, not of the desktop.
#pragma once

#include <QtCore/QString>

// A style sheet whose borders, boxes, tabs and scroll bars grow with the screen.
QString DialogStyleSheet(double magnification);

// Logical pixels.
constexpr int scrollBarExtent = 13;
