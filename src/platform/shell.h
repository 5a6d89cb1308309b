// What the handheld's shell does for a program: soft input panel, menu bar, full screen,
// tap-and-hold.
#pragma once

#include "platform/types.h"

constexpr UINT SPI_SETSIPINFO = 224;
constexpr UINT SPI_GETSIPINFO = 225;
constexpr DWORD SIPF_ON = 1;

// The record keeps its 48 bytes everywhere, so the picture data is a number, always 0.
struct SIPINFO {
    DWORD cbSize = 0;
    DWORD fdwFlags = 0;
    RECT rcVisibleDesktop;
    RECT rcSipRect;
    DWORD dwImeDataSize = 0;
    DWORD imageData = 0;
};
static_assert(sizeof(SIPINFO) == 48);

struct SHACTIVATEINFO {
    DWORD cbSize = 0;
    DWORD lastFocus = 0;
    DWORD flags = 0;
};
static_assert(sizeof(SHACTIVATEINFO) == 12);

// Queries the panel, or raises and lowers it by SIPF_ON. A change has sent its WM_SETTINGCHANGE
// before the call returns. FALSE for another action or a wrong cbSize.
BOOL SHSipInfo(UINT action, UINT parameter, void* record, UINT flags);

constexpr UINT SIP_UP = 0;
constexpr UINT SIP_DOWN = 1;
constexpr UINT SIP_FORCEDOWN = 2;
// Says what the window would like; the panel goes up or down like by its button.
BOOL SHSipPreference(HWND window, UINT state);

// The files of a WM_DROPFILES: dropped on the window, named on the command line or by another
// start. Their number for this index; else the length of the path that was copied, 0 for one that
// does not fit the buffer or has no name on the device.
constexpr UINT numberOfFiles = 0xFFFFFFFF;
UINT DragQueryFileW(HDROP files, UINT index, WCHAR* buffer, UINT size);
void DragFinish(HDROP files);

// Fits the window to the visible desktop: 240 by 268 with the panel down, 240 by 188 with it up. A
// dialog has no menu bar below it: 240 by 294 and 240 by 214.
BOOL SHHandleWMSettingChange(HWND window, WPARAM wParam, LPARAM lParam, SHACTIVATEINFO* record);

constexpr DWORD SHIDIM_FLAGS = 1;
constexpr DWORD SHIDIF_DONEBUTTON = 1;
constexpr DWORD SHIDIF_SIZEDLGFULLSCREEN = 4;
constexpr DWORD SHIDIF_SIPDOWN = 8;
constexpr DWORD SHIDIF_FULLSCREENNOMENUBAR = 16;

struct SHINITDLGINFO {
    DWORD dwMask = 0;
    HWND hDlg = nullptr;
    DWORD dwFlags = 0;
};
// Lets the dialog fill the screen below the title bar, puts an OK button that sends command 1 into
// the title bar, and lowers the soft input panel, each by its flag.
BOOL SHInitDialog(SHINITDLGINFO* request);

// Nothing to be done: the handheld raises and lowers the panel by the focus alone.
BOOL SHHandleWMActivate(HWND window, WPARAM wParam, LPARAM lParam, SHACTIVATEINFO* record,
                        DWORD flags);

constexpr DWORD SHFS_SHOWTASKBAR = 1;
constexpr DWORD SHFS_SHOWSIPBUTTON = 4;
constexpr DWORD SHFS_HIDESIPBUTTON = 8;
constexpr DWORD SHFS_SHOWSTARTICON = 16;
// Shows or hides the soft input panel's button; the title bar always stays.
BOOL SHFullScreen(HWND window, DWORD state);

struct SHMENUBARINFO {
    DWORD cbSize = 0;
    HWND hwndParent = nullptr;
    DWORD dwFlags = 0;
    UINT nToolBarId = 0;
    HINSTANCE hInstRes = nullptr;
    int nBmpId = 0;
    int cBmpImages = 0;
    HWND hwndMB = nullptr;  // out: the menu bar
};
// FALSE when the parent has a menu bar already or there is no such menu-bar resource.
BOOL SHCreateMenuBar(SHMENUBARINFO* request);

constexpr DWORD SHRG_RETURNCMD = 1;
constexpr DWORD GN_CONTEXTMENU = 1000;

struct SHRGINFO {
    DWORD cbSize = 0;
    HWND hwndClient = nullptr;
    POINT ptDown;
    DWORD dwFlags = 0;
};
// Called at pen down: watches the stylus for up to 600 ms. GN_CONTEXTMENU when it stayed on the
// spot (at once for a right click), and the pen up that ends the hold is then not delivered.
// Else 0, and the stylus messages of the meantime are queued. Moves on the spot are none.
DWORD SHRecognizeGesture(SHRGINFO* gesture);
