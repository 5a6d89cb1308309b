// Drawing contexts, bitmaps, pens, brushes, fonts, shapes and text.
//
// All sizes are logical pixels, 96 to the inch; a surface may hold several device pixels for each.
// Right and bottom edges are exclusive, and a line leaves out its last point.
#pragma once

#include "platform/resources.h"
#include "platform/types.h"

constexpr int LF_FACESIZE = 32;
constexpr int LOGPIXELSY = 90;
constexpr int PS_SOLID = 0;
constexpr int WHITE_BRUSH = 0;
constexpr int TRANSPARENT = 1;
constexpr int OPAQUE = 2;
constexpr DWORD SRCCOPY = 0x00CC0020;
constexpr DWORD WHITENESS = 0x00FF0062;

constexpr UINT DT_CENTER = 0x01;
constexpr UINT DT_VCENTER = 0x04;
constexpr UINT DT_WORDBREAK = 0x10;
constexpr UINT DT_SINGLELINE = 0x20;

// A positive height is the whole character cell, a negative one the characters without their
// internal leading. Weight 0 is the face's regular weight, 700 is bold.
struct LOGFONTW {
    LONG lfHeight = 0;
    LONG lfWeight = 0;
    WCHAR lfFaceName[LF_FACESIZE] = {};
};

struct PAINTSTRUCT {
    HDC hdc = nullptr;
    RECT rcPaint;
};

HDC GetDC(HWND window);
int ReleaseDC(HWND window, HDC context);
// Also validates the window, so that its due WM_PAINT is done with.
HDC BeginPaint(HWND window, PAINTSTRUCT* paint);
BOOL EndPaint(HWND window, const PAINTSTRUCT* paint);

// A memory context starts with a bitmap of one pixel; a size below one counts as one.
HDC CreateCompatibleDC(HDC context);
BOOL DeleteDC(HDC context);
HBITMAP CreateCompatibleBitmap(HDC context, int width, int height);

HPEN CreatePen(int style, int width, COLORREF color);
HBRUSH CreateSolidBrush(COLORREF color);
HFONT CreateFontIndirectW(const LOGFONTW* description);
// Fonts only: fills in the description that the font was made from and returns its size; 0 for
// another object or another size.
int GetObjectW(HGDIOBJ object, int size, void* description);
HGDIOBJ GetStockObject(int object);
// Returns the object of the same kind that it replaces.
HGDIOBJ SelectObject(HDC context, HGDIOBJ object);
// FALSE for null, for a stock object and for one that is selected into a context.
BOOL DeleteObject(HGDIOBJ object);
int GetDeviceCaps(HDC context, int index);

// The three setters return the value they replace.
COLORREF SetTextColor(HDC context, COLORREF color);
COLORREF SetBkColor(HDC context, COLORREF color);
int SetBkMode(HDC context, int mode);

BOOL Rectangle(HDC context, int left, int top, int right, int bottom);
BOOL RoundRect(HDC context, int left, int top, int right, int bottom, int width, int height);
// Horizontal and vertical lines only: the program draws no others.
BOOL Polyline(HDC context, const POINT* points, int count);
// A count of -1 takes the text up to its zero. Text never leaves the box. Returns 0 when the
// context has nothing to draw on, else 1: nobody asks for the height.
int DrawTextW(HDC context, const WCHAR* text, int count, RECT* box, UINT format);

// SRCCOPY only. What lies outside the source's bitmap is copied as white.
BOOL BitBlt(HDC destination, int x, int y, int width, int height, HDC source, int sourceX,
            int sourceY, DWORD operation);
// WHITENESS only.
BOOL PatBlt(HDC context, int x, int y, int width, int height, DWORD operation);
