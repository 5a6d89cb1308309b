#include "app/win_main.h"

#include "app/main_window.h"
#include "app/view.h"
#include "platform/resources.h"
#include "platform/shell.h"
#include "platform/windows.h"
#include "resources/ids.h"

namespace {

constexpr int longestName = 100;
constexpr int roomForMenuBar = 26;

HWND CreateMainWindow(HINSTANCE instance, const WCHAR* className, const WCHAR* title) {
    SIPINFO panel;
    panel.cbSize = sizeof panel;
    SHSipInfo(SPI_GETSIPINFO, 0, &panel, 0);
    const RECT& desktop = panel.rcVisibleDesktop;
    const int below = (panel.fdwFlags & SIPF_ON) != 0 ? 0 : roomForMenuBar;
    return CreateWindowExW(0, className, title, WS_VISIBLE, CW_USEDEFAULT, CW_USEDEFAULT,
                           desktop.right - desktop.left, desktop.bottom - desktop.top - below,
                           nullptr, nullptr, instance, nullptr);
}

// The lowest bit brings the windows it owns forward, too.
void BringForward(HWND window) {
    SetForegroundWindow(reinterpret_cast<HWND>(reinterpret_cast<std::uintptr_t>(window) | 1));
}

}  // namespace

int InitInstance(HINSTANCE instance, int showCommand) {
    WCHAR className[longestName];
    WCHAR title[longestName];
    LoadStringW(instance, stringClassName, className, longestName);
    LoadStringW(instance, stringTitle, title, longestName);
    if (HWND running = FindWindowW(className, title)) {
        BringForward(running);
        return 0;
    }
    DefineMainClass(instance, className);
    MainWindow = CreateMainWindow(instance, className, title);
    if (MainWindow == nullptr) {
        return 0;
    }
    ShowWindow(MainWindow, showCommand);
    ShowWindow(MenuBar, SW_SHOW);
    UpdateWindow(MainWindow);
    return 1;
}

int WinMain(HINSTANCE instance, HINSTANCE, WCHAR*, int showCommand) {
    if (InitInstance(instance, showCommand) == 0) {
        return 0;
    }
    HACCEL accelerators = LoadAcceleratorsW(instance, acceleratorTable);
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0)) {
        if (!TranslateAcceleratorW(message.hwnd, accelerators, &message)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
    return static_cast<int>(message.wParam);
}
