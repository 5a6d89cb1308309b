// What was drawn on a surface, kept as marks in logical pixels, so that a surface can be drawn
// again, sharp, at another ratio.
#pragma once

#include <QtCore/QSize>
#include <QtGui/QRgb>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "platform/qt/common/font_choice.h"
#include "platform/types.h"

struct FillMark {
    RECT area;
    QRgb color = 0;
};

// An outline of one logical pixel around a fill.
struct FrameMark {
    RECT area;
    QRgb outline = 0;
    QRgb fill = 0;
    QSize corner;  // the ellipse of each rounded corner; empty for square ones
};

// A horizontal or vertical run of logical pixels, as thin as an outline.
struct LineMark {
    RECT area;
    QRgb color = 0;
};

struct TextMark {
    RECT box;
    std::u16string text;
    UINT format = 0;
    FontChoice font;
    QRgb color = 0;
    bool opaque = false;
    QRgb background = 0;
};

struct ArtMark {
    RECT area;
    const char* file = nullptr;
};

struct CopyMark;
using Mark = std::variant<FillMark, FrameMark, LineMark, TextMark, ArtMark, CopyMark>;

// The content of a surface at one moment.
struct Picture;

struct CopyMark {
    RECT area;
    POINT source;
    std::shared_ptr<const Picture> picture;
};

struct Picture {
    QSize size;
    std::vector<Mark> marks;
};

// The pixels that a mark certainly hides; an empty rectangle when it hides none for sure.
RECT HiddenArea(const Mark& mark);
// A rectangle that holds all pixels the mark can touch.
const RECT& TouchedArea(const Mark& mark);

RECT WholeArea(const Picture& picture);
// Whether white ground may be seen: not when the picture begins by covering everything.
bool NeedsGround(const Picture& picture);

inline bool Contains(const RECT& outer, const RECT& inner) {
    return outer.left <= inner.left && outer.top <= inner.top && outer.right >= inner.right &&
           outer.bottom >= inner.bottom;
}
