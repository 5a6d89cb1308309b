// Drawing contexts and objects.
//
// Supported: solid pens one pixel wide, solid brushes, fonts in two faces ("System" and every
// other name), bitmaps, rectangles, rounded rectangles, horizontal and vertical lines, text,
// copies. Left out: pen styles, patterns, regions, palettes, slanted lines, raster operations
// beyond two.
#include "platform/drawing.h"

#include <algorithm>
#include <string_view>

#include "platform/qt/look/art.h"
#include "platform/qt/surface/drawing_objects.h"
#include "platform/qt/surface/text_painter.h"
#include "platform/qt/window/window.h"

namespace {

DrawingObject* MakeStockObject(DrawingObject::Kind kind, COLORREF color) {
    auto* object = new DrawingObject(kind);
    object->stock = true;
    object->color = ToQRgb(color);
    if (kind == DrawingObject::Kind::Font) {
        object->font.height = -12;
    } else if (kind == DrawingObject::Kind::Bitmap) {
        object->surface = std::make_unique<Surface>(1, 1);
    }
    return object;
}

// What a new context holds; made once and kept until the process ends.
struct StockObjects {
    HGDIOBJ blackPen = MakeStockObject(DrawingObject::Kind::Pen, 0x000000);
    HGDIOBJ whiteBrush = MakeStockObject(DrawingObject::Kind::Brush, 0xFFFFFF);
    HGDIOBJ font = MakeStockObject(DrawingObject::Kind::Font, 0);
    HGDIOBJ bitmap = MakeStockObject(DrawingObject::Kind::Bitmap, 0);
};

const StockObjects& Stock() {
    static const StockObjects* objects = new StockObjects;
    return *objects;
}

HGDIOBJ& Slot(HDC context, DrawingObject::Kind kind) {
    switch (kind) {
        case DrawingObject::Kind::Pen: return context->pen;
        case DrawingObject::Kind::Brush: return context->brush;
        case DrawingObject::Kind::Font: return context->font;
        default: return context->bitmap;
    }
}

void SelectStockObjects(HDC context) {
    context->pen = Stock().blackPen;
    context->brush = Stock().whiteBrush;
    context->font = Stock().font;
}

void ReleaseObjects(HDC context) {
    for (HGDIOBJ object : {context->pen, context->brush, context->font, context->bitmap}) {
        if (object != nullptr) {
            --object->selections;
        }
    }
}

void CountObjects(HDC context) {
    for (HGDIOBJ object : {context->pen, context->brush, context->font, context->bitmap}) {
        if (object != nullptr) {
            ++object->selections;
        }
    }
}

BOOL DrawOn(HDC context, Mark mark) {
    if (context == nullptr || context->surface == nullptr) {
        return FALSE;
    }
    const RECT touched = TouchedArea(mark);
    context->surface->Draw(std::move(mark));
    if (context->window != nullptr) {
        ShowSoon(context->window, touched);
    }
    return TRUE;
}

HGDIOBJ MakeColored(DrawingObject::Kind kind, COLORREF color) {
    auto* object = new DrawingObject(kind);
    object->color = ToQRgb(color);
    return object;
}

}  // namespace

QRgb ToQRgb(COLORREF color) {
    return qRgb(GetRValue(color), GetGValue(color), GetBValue(color));
}

HDC GetDC(HWND window) {
    Surface* surface = SurfaceOf(window);
    if (surface == nullptr) {
        return nullptr;
    }
    auto* context = new DrawingContext;
    context->window = window;
    context->surface = surface;
    SelectStockObjects(context);
    CountObjects(context);
    return context;
}

int ReleaseDC(HWND, HDC context) {
    if (context == nullptr) {
        return 0;
    }
    ReleaseObjects(context);
    delete context;
    return 1;
}

HDC BeginPaint(HWND window, PAINTSTRUCT* paint) {
    ValidateWindow(window);
    *paint = {};
    paint->hdc = GetDC(window);
    if (paint->hdc != nullptr) {
        GetClientRect(window, &paint->rcPaint);
    }
    return paint->hdc;
}

BOOL EndPaint(HWND window, const PAINTSTRUCT* paint) {
    return ReleaseDC(window, paint->hdc) != 0;
}

HDC CreateCompatibleDC(HDC) {
    auto* context = new DrawingContext;
    SelectStockObjects(context);
    context->bitmap = Stock().bitmap;
    context->surface = context->bitmap->surface.get();
    CountObjects(context);
    return context;
}

BOOL DeleteDC(HDC context) {
    return ReleaseDC(nullptr, context) != 0;
}

HBITMAP CreateCompatibleBitmap(HDC, int width, int height) {
    auto* object = new DrawingObject(DrawingObject::Kind::Bitmap);
    object->surface = std::make_unique<Surface>(width, height);
    return object;
}

HBITMAP LoadBitmapW(HINSTANCE instance, int id) {
    const auto found = std::find_if(instance->art.begin(), instance->art.end(),
                                    [id](const ArtResource& art) { return art.id == id; });
    if (found == instance->art.end()) {
        return nullptr;
    }
    HBITMAP bitmap = CreateCompatibleBitmap(nullptr, found->width, found->height);
    bitmap->surface->Draw(ArtMark{{0, 0, found->width, found->height}, found->file});
    return bitmap;
}

HPEN CreatePen(int, int, COLORREF color) {
    return MakeColored(DrawingObject::Kind::Pen, color);
}

HBRUSH CreateSolidBrush(COLORREF color) {
    return MakeColored(DrawingObject::Kind::Brush, color);
}

HFONT CreateFontIndirectW(const LOGFONTW* description) {
    auto* object = new DrawingObject(DrawingObject::Kind::Font);
    const std::u16string_view face(description->lfFaceName);
    object->font.face = face == u"System" ? FontChoice::Face::System : FontChoice::Face::Small;
    object->font.bold = description->lfWeight >= 600;
    object->font.height = description->lfHeight != 0 ? description->lfHeight : -12;
    object->description = *description;
    return object;
}

int GetObjectW(HGDIOBJ object, int size, void* description) {
    if (object == nullptr || object->kind != DrawingObject::Kind::Font ||
        size != static_cast<int>(sizeof(LOGFONTW))) {
        return 0;
    }
    *static_cast<LOGFONTW*>(description) = object->description;
    return size;
}

HGDIOBJ GetStockObject(int object) {
    return object == WHITE_BRUSH ? Stock().whiteBrush : nullptr;
}

HGDIOBJ SelectObject(HDC context, HGDIOBJ object) {
    const bool windowWithBitmap = context != nullptr && context->window != nullptr &&
                                  object != nullptr && object->kind == DrawingObject::Kind::Bitmap;
    if (context == nullptr || object == nullptr || windowWithBitmap) {
        return nullptr;
    }
    HGDIOBJ& slot = Slot(context, object->kind);
    HGDIOBJ previous = slot;
    --previous->selections;
    ++object->selections;
    slot = object;
    if (object->kind == DrawingObject::Kind::Bitmap) {
        context->surface = object->surface.get();
    }
    return previous;
}

BOOL DeleteObject(HGDIOBJ object) {
    if (object == nullptr || object->stock || object->selections > 0) {
        return FALSE;
    }
    delete object;
    return TRUE;
}

int GetDeviceCaps(HDC, int index) {
    constexpr int dotsPerInch = 96;
    return index == LOGPIXELSY ? dotsPerInch : 0;
}

COLORREF SetTextColor(HDC context, COLORREF color) {
    return context == nullptr ? 0 : std::exchange(context->textColor, color);
}

COLORREF SetBkColor(HDC context, COLORREF color) {
    return context == nullptr ? 0 : std::exchange(context->backgroundColor, color);
}

int SetBkMode(HDC context, int mode) {
    return context == nullptr ? 0 : std::exchange(context->backgroundMode, mode);
}

namespace {

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
    if (destination->window != nullptr) {
        ShowSoon(destination->window, area);
    }
    return TRUE;
}

BOOL PatBlt(HDC context, int x, int y, int width, int height, DWORD operation) {
    return operation == WHITENESS &&
           DrawOn(context, FillMark{{x, y, x + width, y + height}, qRgb(255, 255, 255)});
}
