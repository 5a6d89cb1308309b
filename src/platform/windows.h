// Window classes, windows, messages, timers and the message loop.
//
// Stylus and key messages and menu commands are queued; WM_ACTIVATE, WM_SIZE, WM_PAINT,
// WM_SETTINGCHANGE and WM_TIMER are sent at once. A window keeps what was drawn on it: WM_PAINT
// comes when the window first shows, not when it is uncovered or resized. WM_ACTIVATE follows the
// handheld's own windows: neither the focus of the host nor a message box or chooser, which lie
// over the screen without touching it, sends one.
#pragma once

#include "platform/types.h"

using WNDPROC = LRESULT (*)(HWND, UINT, WPARAM, LPARAM);

constexpr UINT WM_CREATE = 1;
constexpr UINT WM_DESTROY = 2;
constexpr UINT WM_SIZE = 5;
constexpr UINT WM_ACTIVATE = 6;
constexpr UINT WM_PAINT = 15;
constexpr UINT WM_CLOSE = 16;
constexpr UINT WM_QUIT = 18;
constexpr UINT WM_SETTINGCHANGE = 26;
constexpr UINT WM_KEYDOWN = 256;
constexpr UINT WM_SYSKEYDOWN = 260;
constexpr UINT WM_COMMAND = 273;
constexpr UINT WM_TIMER = 275;
constexpr UINT WM_MOUSEMOVE = 512;
constexpr UINT WM_LBUTTONDOWN = 513;
constexpr UINT WM_LBUTTONUP = 514;
// Files were handed to the program from outside; wParam is their HDROP (shell.h). Queued when
// nothing is open above the window any more.
constexpr UINT WM_DROPFILES = 563;
// The platform's own, sent while the program is played, so that nothing is lost in a crash: its
// state should be on the disk soon. The answer is not 0 when it should be asked again, because a
// file is still on its way.
constexpr UINT WM_KEEPSTATE = 0x8001;

constexpr WPARAM SIZE_RESTORED = 0;
constexpr WPARAM SIZE_MINIMIZED = 1;
constexpr WPARAM WA_INACTIVE = 0;
constexpr WPARAM WA_ACTIVE = 1;

constexpr int VK_BACK = 8;
constexpr int VK_TAB = 9;
constexpr int VK_RETURN = 13;
constexpr int VK_ESCAPE = 27;
constexpr int VK_SPACE = 32;
constexpr int VK_PRIOR = 33;
constexpr int VK_NEXT = 34;
constexpr int VK_END = 35;
constexpr int VK_HOME = 36;
constexpr int VK_LEFT = 37;
constexpr int VK_UP = 38;
constexpr int VK_RIGHT = 39;
constexpr int VK_DOWN = 40;
constexpr int VK_INSERT = 45;
constexpr int VK_DELETE = 46;
constexpr int VK_F1 = 112;

constexpr UINT CS_VREDRAW = 1;
constexpr UINT CS_HREDRAW = 2;
constexpr DWORD WS_VISIBLE = 0x10000000;
constexpr int CW_USEDEFAULT = INT32_MIN;
constexpr int SW_HIDE = 0;
constexpr int SW_SHOW = 5;

struct WNDCLASSW {
    UINT style = 0;
    WNDPROC lpfnWndProc = nullptr;
    int cbClsExtra = 0;
    int cbWndExtra = 0;
    HINSTANCE hInstance = nullptr;
    HICON hIcon = nullptr;
    HBRUSH hbrBackground = nullptr;
    const WCHAR* lpszMenuName = nullptr;
    const WCHAR* lpszClassName = nullptr;
};

struct MSG {
    HWND hwnd = nullptr;
    UINT message = 0;
    WPARAM wParam = 0;
    LPARAM lParam = 0;
};

// Zero when the class has no name or no procedure.
ATOM RegisterClassW(const WNDCLASSW* windowClass);

// Sends WM_CREATE before it returns. Null when the class is unknown. Sizes are logical pixels.
HWND CreateWindowExW(DWORD extendedStyle, const WCHAR* className, const WCHAR* title, DWORD style,
                     int x, int y, int width, int height, HWND parent, HMENU menu,
                     HINSTANCE instance, void* creationData);
// Sends WM_DESTROY. FALSE when the window is already gone.
BOOL DestroyWindow(HWND window);
BOOL ShowWindow(HWND window, int showCommand);
// Sends the WM_PAINT that is due, and brings what was drawn to the screen.
BOOL UpdateWindow(HWND window);
BOOL GetClientRect(HWND window, RECT* rectangle);
// Gives the keyboard to a window or a control.
void SetFocus(HWND window);

// The program's window in another process that runs from the same program folder for the same user;
// null when there is none, and then this process is the one that others find.
HWND FindWindowW(const WCHAR* className, const WCHAR* title);
// Takes the window, with or without its lowest bit set. Asks the other process when it is there.
BOOL SetForegroundWindow(HWND window);

LRESULT DefWindowProcW(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT SendMessageW(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
BOOL PostMessageW(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
void PostQuitMessage(int exitCode);

// Waits for the next message; FALSE for WM_QUIT, whose wParam is the exit code.
BOOL GetMessageW(MSG* message, HWND window, UINT first, UINT last);
BOOL TranslateMessage(const MSG* message);
LRESULT DispatchMessageW(const MSG* message);

// The program's accelerator table of that number; null when there is none.
HACCEL LoadAcceleratorsW(HINSTANCE instance, int table);
// Sends the command of a matching key press to the window; FALSE when no accelerator matches.
BOOL TranslateAcceleratorW(HWND window, HACCEL table, const MSG* message);

// Sends WM_TIMER with the identifier at every period until the timer is killed or the window is
// destroyed; setting it again starts it anew. Timers have no procedure of their own.
WPARAM SetTimer(HWND window, WPARAM id, UINT milliseconds, void* procedure);
BOOL KillTimer(HWND window, WPARAM id);

// Shows what was drawn, then waits without handling input.
void Sleep(DWORD milliseconds);

// The program's own entry, called by the platform once the handheld is up.
int WinMain(HINSTANCE instance, HINSTANCE previousInstance, WCHAR* commandLine, int showCommand);
