// Supported: solid pens one pixel wide, solid brushes, fonts in two faces ("System" and every
// other name), bitmaps. Left out: pen styles, patterns, regions, palettes.
#include "platform/qt/surface/drawing_objects.h"

#include "platform/qt/common/find_by_id.h"
#include "platform/resources.h"

namespace {

DrawingObject* MakeStockObject(DrawingObject::Kind kind, COLORREF color) {
    auto* object = new DrawingObject(kind);
    object->stock = true;
    object->color = ToQRgb(color);
    if (kind == DrawingObject::Kind::Bitmap) {
        object->surface = std::make_unique<Surface>(1, 1);
    }
    return object;
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

const StockObjects& Stock() {
    static const auto* objects =
        new StockObjects{MakeStockObject(DrawingObject::Kind::Pen, 0x000000),
                         MakeStockObject(DrawingObject::Kind::Brush, 0xFFFFFF),
                         MakeStockObject(DrawingObject::Kind::Font, 0),
                         MakeStockObject(DrawingObject::Kind::Bitmap, 0)};
    return *objects;
}

HBITMAP CreateCompatibleBitmap(HDC, int width, int height) {
    auto* object = new DrawingObject(DrawingObject::Kind::Bitmap);
    object->surface = std::make_unique<Surface>(width, height);
    return object;
}

HBITMAP LoadBitmapW(HINSTANCE instance, int id) {
    const ArtResource* found = FindById(instance->art, id);
    if (found == nullptr) {
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
    object->font = ToFontChoice(*description);
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

BOOL DeleteObject(HGDIOBJ object) {
    if (object == nullptr || object->stock || object->selections > 0) {
        return FALSE;
    }
    delete object;
    return TRUE;
}
