// Text drawn from cached pictures of words and letters.
#pragma once

#include <QtGui/QPainter>

#include "platform/qt/common/marks.h"
#include "platform/qt/common/scale.h"

void PaintText(QPainter& painter, const Scale& scale, const TextMark& mark);
