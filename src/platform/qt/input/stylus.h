// The stylus: left button, finger or pen; and whether it is held on the spot.
#pragma once

#include <QtCore/QPointF>

#include "platform/types.h"

class QWidget;

// Each queues its message for the window. A hold that counts at once (a right click) has no
// moves and no release.
void StylusPressed(HWND window, POINT point, bool heldAtOnce);
void StylusMoved(HWND window, POINT point);
void StylusReleased(HWND window, POINT point);

// Waits until it counts as held on the spot; false when it has moved away or was lifted before. A
// cue grows meanwhile around the point of the widget, which holds the handheld's screen.
bool AwaitHold(QWidget* screen, QPointF point);
