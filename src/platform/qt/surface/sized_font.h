// The fonts of what is drawn, in device pixels.
#pragma once

#include <QtGui/QFont>

#include "platform/qt/common/marks.h"

// A face sized for one ratio, with its vertical measures in device pixels.
struct SizedFont {
    QFont font;
    int pixelSize = 0;
    int ascent = 0;
    int capHeight = 0;
    // Word-broken text is set solid, without leading, so that two lines of a clue fit the bar.
    int solidAscent = 0;
    int solidPitch = 0;
};

// Valid until another font is asked for.
const SizedFont& FindSizedFont(const FontChoice& choice, double ratio);
