// Rules that paint, tested without a window: what they paint goes to a buffer that nobody sees.
#pragma once

#include <utility>

#include "app/view.h"

class WithoutWindow {
public:
    WithoutWindow() {
        CreateOffscreenBuffer(nullptr, 1, 1);
        CellSize = 1;
        ViewWidth = ViewHeight = ScrollX = ScrollY = 0;
    }
    ~WithoutWindow() {
        DeleteOffscreenBuffer();
        OffscreenBuffer = buffer;
        MainWindow = window;
        ScrollX = ScrollY = 0;
    }
    WithoutWindow(const WithoutWindow&) = delete;
    WithoutWindow& operator=(const WithoutWindow&) = delete;

private:
    OffscreenBufferRecord buffer = std::exchange(OffscreenBuffer, {});
    HWND window = std::exchange(MainWindow, nullptr);
};
