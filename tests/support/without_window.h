// Rules that paint, tested without a window: what they paint goes nowhere.
#pragma once

#include "app/view.h"

class WithoutWindow {
public:
    WithoutWindow() {
        MainWindow = nullptr;
        CellSize = 1;
        ViewWidth = ViewHeight = ScrollX = ScrollY = 0;
    }
    ~WithoutWindow() {
        MainWindow = window;
        ScrollX = ScrollY = 0;
    }
    WithoutWindow(const WithoutWindow&) = delete;
    WithoutWindow& operator=(const WithoutWindow&) = delete;

private:
    HWND window = MainWindow;
};
