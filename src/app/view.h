// The view of the board: its layout, its scroll position and the off-screen buffer that all board
// painting goes to. All sizes are logical pixels.
#pragma once

#include "platform/shell.h"
#include "platform/types.h"

// Written by the main window's creation.
inline HWND MainWindow = nullptr;
inline HWND MenuBar = nullptr;

// Written by start-up and ComputeLayout; BottomReserve and ViewHeight also by ReserveBelowView, the
// scroll by KeepBottomEdge, DragScroll and ScrollIntoView.
inline int CellSize = 1;
inline int BoardLeft = 0;
inline int BottomReserve = 0;
inline int ViewWidth = 0;
inline int ViewHeight = 0;
inline int BufferWidth = 0;
inline int BufferHeight = 0;
inline int ScrollX = 0;
inline int ScrollY = 0;

// The space below the board: the clue bar, alone or with the on-screen keyboard.
constexpr int clueBarReserve = 20;
constexpr int keyboardReserve = 65;

// Written by the stylus messages of the main window.
inline POINT StylusLast;
inline POINT StylusNow;

// 0 or 1, and 0 at start-up. KeyboardVisible is written by the on-screen keyboard and by soft input
// panel changes, ClueChosen by the clue list and WM_ACTIVATE, TapHoldActive by the pen down,
// ShowSolution by the whole-puzzle hint and PaintBoard.
inline int KeyboardVisible = 0;
inline int ClueChosen = 0;
inline int TapHoldActive = 0;
inline int ShowSolution = 0;

// Shell records. Cleared before each call that takes them; QuerySipInfo has SipInfo filled in.
inline SIPINFO SipInfo;
inline SHACTIVATEINFO ShellActivateInfo;

struct OffscreenBufferRecord {
    int height = 0;
    int width = 0;
    HBITMAP bitmap = nullptr;
    HDC context = nullptr;
};

// Written by CreateOffscreenBuffer and DeleteOffscreenBuffer.
inline OffscreenBufferRecord OffscreenBuffer;

// Fills the whole new buffer with white.
void CreateOffscreenBuffer(HWND window, int width, int height);
void DeleteOffscreenBuffer();

// Copies a block of the buffer from (sourceX, sourceY) to the window's top-left corner.
void CopyBufferToScreen(HWND window, int width, int height, int sourceX, int sourceY);

// The part of the buffer that the view shows now.
void CopyViewToScreen(HWND window);

// Clears SipInfo, gives it its size and asks the shell; false when the shell refuses.
bool QuerySipInfo();

// True when the soft input panel was up and is now lowered.
bool LowerInputPanel();

// The space below the board, by KeyboardVisible and the soft input panel of SipInfo: the on-screen
// keyboard is not shown above a panel.
int ReserveBelowBoard();

// The part of the client area that shows the board.
RECT BoardViewArea(HWND window);
