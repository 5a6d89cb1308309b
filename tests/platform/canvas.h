// A memory context with a bitmap of its own, for drawing with the platform's operations.
#pragma once

#include "platform/drawing.h"
#include "support/handheld.h"

class Canvas {
public:
    Canvas(int width, int height)
        : context(CreateCompatibleDC(nullptr)),
          bitmap(CreateCompatibleBitmap(context, width, height)),
          oldBitmap(SelectObject(context, bitmap)) {
    }
    ~Canvas() {
        for (Tool* tool : {&pen, &brush, &font}) {
            Drop(*tool);
        }
        SelectObject(context, oldBitmap);
        DeleteObject(bitmap);
        DeleteDC(context);
    }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    void UsePen(COLORREF color) {
        Use(pen, CreatePen(PS_SOLID, 1, color));
    }
    void UseBrush(COLORREF color) {
        Use(brush, CreateSolidBrush(color));
    }
    void UseFont(int height, int weight, const std::u16string& face = u"System") {
        LOGFONTW description;
        description.lfHeight = height;
        description.lfWeight = weight;
        face.copy(description.lfFaceName, LF_FACESIZE - 1);
        Use(font, CreateFontIndirectW(&description));
    }
    QImage Image() const {
        return ImageOf(context);
    }

    const HDC context;

private:
    // The stock object of the kind goes back in before a tool is deleted.
    struct Tool {
        HGDIOBJ made = nullptr;
        HGDIOBJ stock = nullptr;
    };
    void Use(Tool& tool, HGDIOBJ made) {
        const HGDIOBJ previous = SelectObject(context, made);
        if (tool.made == nullptr) {
            tool.stock = previous;
        }
        DeleteObject(tool.made);
        tool.made = made;
    }
    void Drop(Tool& tool) {
        if (tool.made != nullptr) {
            SelectObject(context, tool.stock);
            DeleteObject(tool.made);
        }
    }

    HBITMAP bitmap;
    HGDIOBJ oldBitmap;
    Tool pen;
    Tool brush;
    Tool font;
};
