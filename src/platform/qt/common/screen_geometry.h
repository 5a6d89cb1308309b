// Where the handheld's screen lies in the host's window, and how large.
#pragma once

#include <QtCore/QRectF>
#include <QtCore/QSizeF>

#include "platform/types.h"

// As large as the window has room, in the screen's proportions and in its middle. Called by the
// host's window, whose size this is, in its own pixels; the ratio is that of device pixels to them.
void FitScreenInto(QSizeF window, double deviceRatio);

// Logical pixels to the host window's own.
double ScreenMagnification();
// Logical pixels to device pixels.
double ScreenRatio();

// The place of an area in the host's window, on whole device pixels.
QRectF ExactPlace(const RECT& area);
// The logical point under a point of the host's window.
POINT LogicalPoint(QPointF point);
