#include "keyboard/keyboard_drawing.h"

#include "app/view.h"
#include "board/drawing_tools.h"
#include "platform/drawing.h"
#include "resources/ids.h"

namespace {

constexpr COLORREF pressedKeyColor = RGB(255, 255, 2);

void DrawLabel(HDC context, const RECT& key, const WCHAR* label) {
    RECT box{key.left + 1, key.top + 1, key.right - 1, key.bottom - 1};
    const COLORREF previous = SetBkColor(context, pressedKeyColor);
    DrawTextW(context, label, -1, &box, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    SetBkColor(context, previous);
}

}  // namespace

void DrawKeyboard(HWND window) {
    HDC windowContext = GetDC(window);
    DrawPicture(windowContext, bitmapKeyboard, keyboardArea);
    ReleaseDC(window, windowContext);
}

void DrawKeyboardIfVisible(HWND window) {
    if (KeyboardVisible == 1) {
        DrawKeyboard(window);
    }
}

void DrawPressedKey(HWND window, const RECT& key, const WCHAR* label) {
    constexpr int cornerEllipse = 2;
    constexpr int linesPerInch = 9;
    HDC context = GetDC(window);
    {
        const Owned labelFont(CreateFontOf(u"Arial", HeightOfLines(context, linesPerInch)));
        const Owned outlinePen(CreatePen(PS_SOLID, 1, RGB(0, 0, 0)));
        const Owned keyBrush(CreateSolidBrush(pressedKeyColor));
        const Selected font(context, labelFont);
        const Selected pen(context, outlinePen);
        const Selected brush(context, keyBrush);
        RoundRect(context, key.left, key.top, key.right, key.bottom, cornerEllipse, cornerEllipse);
        DrawLabel(context, key, label);
    }
    ReleaseDC(window, context);
}
