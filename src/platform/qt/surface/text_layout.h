// Lines of text in a box: where they are broken and where the first one stands.
#pragma once

#include <QtCore/QRect>
#include <string>
#include <vector>

#include "platform/qt/common/marks.h"
#include "platform/qt/surface/sized_font.h"

struct Layout {
    std::vector<std::u16string> lines;
    int baseline = 0;  // of the first line
    int pitch = 0;
};

// The box and the result are device pixels; the baseline counts from the box's top.
Layout LayOut(const SizedFont& sized, const TextMark& mark, const QRect& box);

QString ToQString(const std::u16string& text);
