#include "platform/qt/surface/drawing_context.h"

#include <utility>

namespace {

HGDIOBJ& Slot(HDC context, DrawingObject::Kind kind) {
    switch (kind) {
        case DrawingObject::Kind::Pen: return context->pen;
        case DrawingObject::Kind::Brush: return context->brush;
        case DrawingObject::Kind::Font: return context->font;
        default: return context->bitmap;
    }
}

void CountObjects(HDC context, int step) {
    for (HGDIOBJ object : {context->pen, context->brush, context->font, context->bitmap}) {
        if (object != nullptr) {
            object->selections += step;
        }
    }
}

}  // namespace

HDC MakeContext(Surface* surface, HBITMAP bitmap, std::function<void(const RECT&)> drawn) {
    const StockObjects& stock = Stock();
    auto* context = new DrawingContext{surface,          std::move(drawn), stock.blackPen,
                                       stock.whiteBrush, stock.font,       bitmap};
    CountObjects(context, 1);
    return context;
}

HDC CreateCompatibleDC(HDC) {
    HBITMAP bitmap = Stock().bitmap;
    return MakeContext(bitmap->surface.get(), bitmap, {});
}

BOOL DeleteDC(HDC context) {
    if (context == nullptr) {
        return FALSE;
    }
    CountObjects(context, -1);
    delete context;
    return TRUE;
}

HGDIOBJ SelectObject(HDC context, HGDIOBJ object) {
    if (context == nullptr || object == nullptr) {
        return nullptr;
    }
    HGDIOBJ& slot = Slot(context, object->kind);
    HGDIOBJ previous = slot;
    if (previous == nullptr) {
        return nullptr;  // a window's context takes no bitmap
    }
    --previous->selections;
    ++object->selections;
    slot = object;
    if (object->kind == DrawingObject::Kind::Bitmap) {
        context->surface = object->surface.get();
    }
    return previous;
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
