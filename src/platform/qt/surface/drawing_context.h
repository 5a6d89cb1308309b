// What stands behind a drawing context's handle.
#pragma once

#include <functional>

#include "platform/qt/surface/drawing_objects.h"

struct DrawingContext {
    Surface* surface = nullptr;  // what is drawn on
    // Hears which area was drawn on. Set by the window that the context is of; empty in memory.
    std::function<void(const RECT&)> drawn;
    HGDIOBJ pen = nullptr;
    HGDIOBJ brush = nullptr;
    HGDIOBJ font = nullptr;
    HGDIOBJ bitmap = nullptr;  // in memory only
    COLORREF textColor = 0;
    COLORREF backgroundColor = 0xFFFFFF;
    int backgroundMode = OPAQUE;
};

// With the stock objects; on the surface of the bitmap when there is one.
HDC MakeContext(Surface* surface, HBITMAP bitmap, std::function<void(const RECT&)> drawn);
