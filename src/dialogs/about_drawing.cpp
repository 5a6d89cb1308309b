#include "dialogs/about_drawing.h"

#include "board/drawing_tools.h"
#include "platform/windows.h"
#include "resources/ids.h"

namespace {

constexpr int screenWidth = 240;
constexpr int screenHeight = 320;

// Where the pieces come to rest.
constexpr int leftRest = 22;
constexpr int topRest = 72;
constexpr int rightRest = 192;

// The other coordinate of all three: the y of the left and right pieces, the x of the top one.
constexpr int across = 102;

constexpr int leftStep = 2;
constexpr int topStep = 4;
constexpr int rightStep = 3;

void DrawOnScreen(HWND dialog, void (*draw)(HDC)) {
    HDC context = GetDC(dialog);
    {
        const PaintBracket bracket(dialog);
        Rectangle(context, 0, 0, screenWidth, screenHeight);
        draw(context);
    }
    ReleaseDC(dialog, context);
    UpdateWindow(dialog);
}

void MovePieces() {
    auto& [left, top, right] = LogoPieces;
    left = left + leftStep < leftRest + leftStep ? left + leftStep : left;
    top = top + topStep < topRest + topStep ? top + topStep : top;
    right = right - rightStep > rightRest - rightStep ? right - rightStep : right;
}

void DrawPieces(HDC context) {
    const auto& [left, top, right] = LogoPieces;
    DrawPicture(context, bitmapLogoLeft, {left, across, left + 62, across + 91});
    DrawPicture(context, bitmapLogoTop, {across, top, across + 64, top + 84});
    DrawPicture(context, bitmapLogoRight, {right, across, right + 27, across + 84});
}

}  // namespace

void ResetLogoPieces() {
    LogoPieces[0] = 0;
    LogoPieces[1] = 0;
    LogoPieces[2] = screenWidth;
}

bool LogoIsTogether() {
    return LogoPieces[0] == leftRest && LogoPieces[1] == topRest && LogoPieces[2] == rightRest;
}

void DrawAboutFrame(HWND dialog) {
    MovePieces();
    DrawOnScreen(dialog, DrawPieces);
}

void DrawAboutPicture(HWND dialog) {
    DrawOnScreen(dialog, [](HDC context) {
        DrawPicture(context, bitmapAbout, {0, 0, screenWidth, screenHeight});
    });
}
