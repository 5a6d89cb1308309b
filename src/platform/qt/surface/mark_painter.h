// Drawing marks into device pixels.
#pragma once

#include <QtGui/QPainter>

#include "platform/qt/common/marks.h"
#include "platform/qt/common/scale.h"

void PaintMark(QPainter& painter, const Scale& scale, const Mark& mark);
void PaintPicture(QPainter& painter, const Scale& scale, const Picture& picture);

// Source and destination have the same scale.
void CopyPixels(QPainter& painter, const Scale& scale, const RECT& area, const QImage& from,
                POINT source);
