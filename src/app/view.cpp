#include "app/view.h"

#include "platform/drawing.h"
#include "platform/windows.h"

namespace {

// When SipInfo was filled in.
bool InputPanelUp() {
    return (SipInfo.fdwFlags & SIPF_ON) != 0;
}

}  // namespace

void CreateOffscreenBuffer(HWND window, int width, int height) {
    HDC windowContext = GetDC(window);
    OffscreenBuffer.context = CreateCompatibleDC(windowContext);
    OffscreenBuffer.bitmap = CreateCompatibleBitmap(windowContext, width, height);
    SelectObject(OffscreenBuffer.context, OffscreenBuffer.bitmap);
    OffscreenBuffer.width = width;
    OffscreenBuffer.height = height;
    PatBlt(OffscreenBuffer.context, 0, 0, width, height, WHITENESS);
    ReleaseDC(window, windowContext);
}

void DeleteOffscreenBuffer() {
    DeleteDC(OffscreenBuffer.context);
    DeleteObject(OffscreenBuffer.bitmap);
    OffscreenBuffer = {};
}

void CopyBufferToScreen(HWND window, int width, int height, int sourceX, int sourceY) {
    HDC windowContext = GetDC(window);
    BitBlt(windowContext, 0, 0, width, height, OffscreenBuffer.context, sourceX, sourceY, SRCCOPY);
    ReleaseDC(window, windowContext);
}

void CopyViewToScreen(HWND window) {
    CopyBufferToScreen(window, ViewWidth, ViewHeight, ScrollX, ScrollY);
}

bool QuerySipInfo() {
    SipInfo = {};
    SipInfo.cbSize = sizeof SipInfo;
    return SHSipInfo(SPI_GETSIPINFO, 0, &SipInfo, 0) != FALSE;
}

bool LowerInputPanel() {
    if (!QuerySipInfo() || !InputPanelUp()) {
        return false;
    }
    SipInfo.fdwFlags &= ~SIPF_ON;
    SHSipInfo(SPI_SETSIPINFO, 0, &SipInfo, 0);
    return true;
}

int ReserveBelowBoard() {
    return !InputPanelUp() && KeyboardVisible == 1 ? keyboardReserve : clueBarReserve;
}

RECT BoardViewArea(HWND window) {
    RECT area;
    GetClientRect(window, &area);
    area.bottom -= BottomReserve;
    return area;
}
