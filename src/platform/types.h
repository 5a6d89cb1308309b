// The plain types that the program and its handheld exchange: handles, points, rectangles,
// numbers and wide characters. Nothing here depends on a library.
#pragma once

#include <cstdint>

using BOOL = int;
using BYTE = std::uint8_t;
using WORD = std::uint16_t;
using DWORD = std::uint32_t;
using UINT = std::uint32_t;
using LONG = std::int32_t;
using ATOM = std::uint16_t;
using WCHAR = char16_t;  // one UTF-16 unit
using WPARAM = std::uintptr_t;
using LPARAM = std::intptr_t;
using LRESULT = std::intptr_t;
using COLORREF = std::uint32_t;  // red in the low byte, then green, then blue

constexpr BOOL FALSE = 0;
constexpr BOOL TRUE = 1;

// The length of every path buffer, its terminating zero included.
constexpr int MAX_PATH = 260;

struct Window;
struct DrawingContext;
struct DrawingObject;
struct MenuObject;
struct IconObject;
struct AcceleratorTable;
struct ModuleResources;
struct HandedFiles;

using HWND = Window*;
using HDC = DrawingContext*;
using HGDIOBJ = DrawingObject*;
using HPEN = HGDIOBJ;
using HBRUSH = HGDIOBJ;
using HFONT = HGDIOBJ;
using HBITMAP = HGDIOBJ;
using HMENU = MenuObject*;
using HICON = const IconObject*;
using HDROP = HandedFiles*;
using HACCEL = const AcceleratorTable*;
using HINSTANCE = const ModuleResources*;  // see resources.h

struct POINT {
    LONG x = 0;
    LONG y = 0;
};

// Left and top lie inside, right and bottom outside.
struct RECT {
    LONG left = 0;
    LONG top = 0;
    LONG right = 0;
    LONG bottom = 0;
};

constexpr BOOL PtInRect(const RECT* rectangle, POINT point) {
    return point.x >= rectangle->left && point.x < rectangle->right && point.y >= rectangle->top &&
           point.y < rectangle->bottom;
}

constexpr WORD LOWORD(std::uintptr_t value) {
    return static_cast<WORD>(value & 0xFFFF);
}
constexpr WORD HIWORD(std::uintptr_t value) {
    return static_cast<WORD>((value >> 16) & 0xFFFF);
}
constexpr LPARAM MAKELPARAM(int low, int high) {
    return static_cast<LPARAM>(static_cast<DWORD>(static_cast<WORD>(low)) |
                               static_cast<DWORD>(static_cast<WORD>(high)) << 16);
}

// What MAKELPARAM packed: a drag may leave the window, so the coordinates are signed.
constexpr POINT SignedPoint(LPARAM packed) {
    const auto value = static_cast<std::uintptr_t>(packed);
    return {static_cast<std::int16_t>(LOWORD(value)), static_cast<std::int16_t>(HIWORD(value))};
}

constexpr COLORREF RGB(int red, int green, int blue) {
    return static_cast<COLORREF>((red & 0xFF) | (green & 0xFF) << 8 | (blue & 0xFF) << 16);
}
constexpr BYTE GetRValue(COLORREF color) {
    return static_cast<BYTE>(color);
}
constexpr BYTE GetGValue(COLORREF color) {
    return static_cast<BYTE>(color >> 8);
}
constexpr BYTE GetBValue(COLORREF color) {
    return static_cast<BYTE>(color >> 16);
}
