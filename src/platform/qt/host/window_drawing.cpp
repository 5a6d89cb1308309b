// Drawing on windows.
#include "platform/drawing.h"
#include "platform/qt/host/client_view.h"
#include "platform/qt/surface/drawing_context.h"
#include "platform/qt/window/window.h"

namespace {

// Brings an area that was drawn on to the screen with the next round of the event loop.
void ShowSoon(HWND window, const RECT& area) {
    if (auto* view = qobject_cast<ClientView*>(window->widget.data())) {
        view->ShowArea(area);
    }
}

}  // namespace

HDC GetDC(HWND window) {
    if (!IsLiveWindow(window) || window->surface == nullptr) {
        return nullptr;
    }
    return MakeContext(window->surface.get(), nullptr,
                       [window](const RECT& area) { ShowSoon(window, area); });
}

int ReleaseDC(HWND, HDC context) {
    return DeleteDC(context);
}

HDC BeginPaint(HWND window, PAINTSTRUCT* paint) {
    *paint = {};
    paint->hdc = GetDC(window);
    if (paint->hdc != nullptr) {
        window->paintDue = false;
        GetClientRect(window, &paint->rcPaint);
    }
    return paint->hdc;
}

BOOL EndPaint(HWND window, const PAINTSTRUCT* paint) {
    return ReleaseDC(window, paint->hdc) != 0;
}
