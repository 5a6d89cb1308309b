#include "app/main_window.h"

#include "app/commands.h"
#include "app/repaint.h"
#include "app/stylus_input.h"
#include "app/view.h"
#include "board/board_fonts.h"
#include "keyboard/keyboard_visibility.h"
#include "platform/drawing.h"
#include "platform/windows.h"
#include "play/letter_entry.h"
#include "play/scroll_into_view.h"
#include "play/settings.h"
#include "resources/ids.h"
#include "storage/start_up.h"

namespace {

void CloseWhenMinimized(HWND window, WPARAM how) {
    if (how == SIZE_MINIMIZED) {
        SendMessageW(window, WM_CLOSE, 0, 0);
    }
}

void ShowChosenClue(HWND window) {
    ClueChosen = 0;
    PaintBoardAndSelection(window);
    if (!ChosenSize().FitsView()) {
        ScrollIntoView();
    }
    ShowBoardAndKeyboard(window);
}

void HandleActivation(HWND window) {
    SHFullScreen(window, SHFS_SHOWTASKBAR | SHFS_SHOWSIPBUTTON | SHFS_SHOWSTARTICON);
    if (ClueChosen == 1) {
        ShowChosenClue(window);
    } else {
        Repaint(window);
    }
}

void FollowInputPanel(HWND window) {
    ShellActivateInfo = {};
    SHHandleWMSettingChange(window, static_cast<WPARAM>(-1), 0, &ShellActivateInfo);
    KeyboardVisible = 0;
    LayOutWithoutKeyboard(window);
}

void HandleSettingChange(HWND window, WPARAM setting) {
    if (setting == SPI_SETSIPINFO) {
        FollowInputPanel(window);
    }
}

void ShutDown() {
    DeleteOffscreenBuffer();
    DeleteBoardFonts();
    SaveState();
    DestroyWindow(MenuBar);
    PostQuitMessage(0);
}

}  // namespace

ATOM DefineMainClass(HINSTANCE instance, const WCHAR* className) {
    WNDCLASSW windowClass;
    windowClass.style = CS_HREDRAW | CS_VREDRAW;
    windowClass.lpfnWndProc = MainWindowProc;
    windowClass.hInstance = instance;
    windowClass.hIcon = LoadIconW(instance, iconQuadrel);
    windowClass.hbrBackground = GetStockObject(WHITE_BRUSH);
    windowClass.lpszClassName = className;
    return RegisterClassW(&windowClass);
}

LRESULT MainWindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_CREATE: return InitializeGame(window);
        case WM_DESTROY: ShutDown(); return 0;
        case WM_SIZE: CloseWhenMinimized(window, wParam); return 0;
        case WM_ACTIVATE: HandleActivation(window); return 0;
        case WM_PAINT: Repaint(window); return 0;
        case WM_SETTINGCHANGE: HandleSettingChange(window, wParam); return 0;
        case WM_DROPFILES: OpenHandedPuzzle(window, reinterpret_cast<HDROP>(wParam)); return 0;
        case WM_KEEPSTATE: return KeepState() ? 1 : 0;
        case WM_KEYDOWN: HandleKeyDown(static_cast<int>(wParam)); return 1;
        case WM_COMMAND:
            return RunCommand(window, LOWORD(wParam))
                       ? 0
                       : DefWindowProcW(window, message, wParam, lParam);
        case WM_MOUSEMOVE: HandlePenMove(window, lParam); return 1;
        case WM_LBUTTONDOWN: HandlePenDown(window, lParam); return 1;
        case WM_LBUTTONUP: HandlePenUp(window, lParam); return 1;
        default: return DefWindowProcW(window, message, wParam, lParam);
    }
}
