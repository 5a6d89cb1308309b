// Text drawn from cached pictures of words and letters.
#pragma once

#include "platform/qt/surface/surface.h"

void PaintText(QPainter& painter, const Scale& scale, const TextMark& mark);
