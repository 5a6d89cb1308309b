// Text drawn from cached pictures of words and letters.
#pragma once

#include "platform/qt/surface.h"

void PaintText(QPainter& painter, const Scale& scale, const TextMark& mark);

// The logical height that DrawTextW reports for the text in its box.
int MeasureTextHeight(const Scale& scale, const TextMark& mark);
