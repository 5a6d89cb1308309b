// The strokes that all board painters share. They draw into a context with the objects that are
// selected in it.
#pragma once

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

// A cell's outline with the current pen, filled with the current brush.
void DrawCellSquare(HDC context, int row, int col);

// A letter in the middle of its cell, with LetterFont. Zero draws nothing.
void DrawCellLetter(HDC context, int row, int col, char letter);

// The clue number that starts in the cell, if the size and the settings show numbers, with
// NumberFont.
void DrawCellNumber(HDC context, int row, int col);
// The same, cut at the box.
void DrawCellNumberInBox(HDC context, int row, int col, const RECT& box);

// Numbers are readable only in the larger sizes.
bool NumbersShown();
