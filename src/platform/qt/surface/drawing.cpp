// Shapes, text and copies.
//
// Supported: rectangles, rounded rectangles, horizontal and vertical lines, text, copies. Left out:
// slanted lines, raster operations beyond two.
#include "platform/drawing.h"

#include <algorithm>

#include "platform/qt/surface/drawing_context.h"

namespace {

void Tell(HDC context, const RECT& area) {
    if (context->drawn) {
        context->drawn(area);
    }
}

BOOL DrawOn(HDC context, Mark mark) {
    if (context == nullptr || context->surface == nullptr) {
        return FALSE;
    }
    const RECT touched = TouchedArea(mark);
    context->surface->Draw(std::move(mark));
    Tell(context, touched);
    return TRUE;
}

// From edge to edge in one colour: it clears. Its last pixels are as whole as the others, not as
// thin as an outline.
bool Clears(HDC context, const RECT& area) {
    const QSize size = context->surface->Size();
    return context->pen->color == context->brush->color &&
           ((area.left <= 0 && area.right >= size.width()) ||
            (area.top <= 0 && area.bottom >= size.height()));
}

}  // namespace

BOOL Rectangle(HDC context, int left, int top, int right, int bottom) {
    const RECT area{left, top, right, bottom};
    if (context != nullptr && context->surface != nullptr && Clears(context, area)) {
        return DrawOn(context, FillMark{area, context->brush->color});
    }
    return RoundRect(context, left, top, right, bottom, 0, 0);
}

BOOL RoundRect(HDC context, int left, int top, int right, int bottom, int width, int height) {
    return context != nullptr && DrawOn(context, FrameMark{{left, top, right, bottom},
                                                           context->pen->color,
                                                           context->brush->color,
                                                           QSize(width, height)});
}

BOOL Polyline(HDC context, const POINT* points, int count) {
    for (int i = 0; i + 1 < count; ++i) {
        const POINT from = points[i];
        const POINT to = points[i + 1];
        if (from.x != to.x && from.y != to.y) {
            return FALSE;
        }
        // The last point is left out, from whichever end the line comes.
        RECT area{std::min(from.x, to.x), std::min(from.y, to.y), std::max(from.x, to.x),
                  std::max(from.y, to.y)};
        area.left += from.x > to.x;
        area.right += from.x > to.x || from.x == to.x;
        area.top += from.y > to.y;
        area.bottom += from.y > to.y || from.y == to.y;
        if (from.x == to.x && from.y == to.y) {
            continue;
        }
        if (!DrawOn(context, LineMark{area, context->pen->color})) {
            return FALSE;
        }
    }
    return TRUE;
}

int DrawTextW(HDC context, const WCHAR* text, int count, RECT* box, UINT format) {
    if (context == nullptr) {
        return 0;
    }
    TextMark mark{
        *box,
        count < 0 ? std::u16string(text) : std::u16string(text, static_cast<size_t>(count)),
        format,
        context->font->font,
        ToQRgb(context->textColor),
        context->backgroundMode == OPAQUE,
        ToQRgb(context->backgroundColor)};
    return DrawOn(context, std::move(mark));
}

BOOL BitBlt(HDC destination, int x, int y, int width, int height, HDC source, int sourceX,
            int sourceY, DWORD operation) {
    if (destination == nullptr || source == nullptr || destination->surface == nullptr ||
        source->surface == nullptr || operation != SRCCOPY) {
        return FALSE;
    }
    const RECT area{x, y, x + width, y + height};
    destination->surface->Copy(area, *source->surface, {sourceX, sourceY});
    Tell(destination, area);
    return TRUE;
}

BOOL PatBlt(HDC context, int x, int y, int width, int height, DWORD operation) {
    return operation == WHITENESS &&
           DrawOn(context, FillMark{{x, y, x + width, y + height}, qRgb(255, 255, 255)});
}
