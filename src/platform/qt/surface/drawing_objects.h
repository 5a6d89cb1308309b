// What stands behind the handles of drawing.h.
#pragma once

#include <memory>

#include "platform/drawing.h"
#include "platform/qt/common/marks.h"
#include "platform/qt/surface/surface.h"

struct DrawingObject {
    enum class Kind { Pen, Brush, Font, Bitmap };

    explicit DrawingObject(Kind its) : kind(its) {
    }

    Kind kind;
    bool stock = false;
    int selections = 0;                // contexts that hold it; it cannot be deleted meanwhile
    QRgb color = 0;                    // pens and brushes
    FontChoice font{};                 // fonts
    LOGFONTW description;              // fonts
    std::unique_ptr<Surface> surface;  // bitmaps
};

struct DrawingContext {
    HWND window = nullptr;       // null for a memory context
    Surface* surface = nullptr;  // what is drawn on
    HGDIOBJ pen = nullptr;
    HGDIOBJ brush = nullptr;
    HGDIOBJ font = nullptr;
    HGDIOBJ bitmap = nullptr;  // memory contexts only
    COLORREF textColor = 0;
    COLORREF backgroundColor = 0xFFFFFF;
    int backgroundMode = OPAQUE;
};

QRgb ToQRgb(COLORREF color);
