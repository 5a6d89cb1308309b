// Pens, brushes, fonts and bitmaps: what stands behind their handles.
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
    LOGFONTW description;              // fonts, as the program gave it
    std::unique_ptr<Surface> surface;  // bitmaps
};

// What a new context holds; made once and kept until the process ends.
struct StockObjects {
    HGDIOBJ blackPen;
    HGDIOBJ whiteBrush;
    HGDIOBJ font;
    HGDIOBJ bitmap;
};

const StockObjects& Stock();

QRgb ToQRgb(COLORREF color);
