// What every painter draws with: guards that put drawing objects back, fonts, pictures.
#pragma once

#include <string_view>

#include "platform/drawing.h"

// Puts an object into a context, and the previous one back at the end of the scope.
class Selected {
public:
    Selected(HDC target, HGDIOBJ object) : context(target), previous(SelectObject(target, object)) {
    }
    ~Selected() {
        SelectObject(context, previous);
    }
    Selected(const Selected&) = delete;
    Selected& operator=(const Selected&) = delete;

private:
    HDC context;
    HGDIOBJ previous;
};

// Deletes a pen, brush or font at the end of the scope. Declared before what selects it.
class Owned {
public:
    explicit Owned(HGDIOBJ created) : object(created) {
    }
    ~Owned() {
        DeleteObject(object);
    }
    Owned(const Owned&) = delete;
    Owned& operator=(const Owned&) = delete;

    operator HGDIOBJ() const {
        return object;
    }

private:
    HGDIOBJ object;
};

// Brackets drawing on behalf of a window; the window counts as painted.
class PaintBracket {
public:
    explicit PaintBracket(HWND target) : window(target) {
        BeginPaint(window, &paint);
    }
    ~PaintBracket() {
        EndPaint(window, &paint);
    }
    PaintBracket(const PaintBracket&) = delete;
    PaintBracket& operator=(const PaintBracket&) = delete;

private:
    HWND window;
    PAINTSTRUCT paint;
};

// The caller's to delete. A negative height is that of the letters alone.
HFONT CreateFontOf(std::u16string_view face, int height, int weight = 0);
// The height of letters of which so many lines fit an inch.
int HeightOfLines(HDC context, int linesPerInch);

// One of the program's pictures at its own size.
void DrawPicture(HDC context, int bitmap, const RECT& place);
