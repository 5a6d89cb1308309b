// What a font is to the handheld.
#pragma once

#include "platform/drawing.h"

struct FontChoice {
    enum class Face { System, Small };
    Face face = Face::System;
    bool bold = false;
    double em = 12;  // logical pixels
    bool operator==(const FontChoice&) const = default;
};

// As the program describes it: by the face's name, its weight and the height of an em or a cell.
FontChoice ToFontChoice(const LOGFONTW& description);
