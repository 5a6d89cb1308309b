// The shapes of the program's resources, and loading them by number.
#pragma once

#include <span>

#include "platform/types.h"

struct StringResource {
    int id;
    const WCHAR* text;
};

// A picture drawn as SVG in resources/art; at ratio 1 it has exactly this size.
struct ArtResource {
    int id;
    const char* file;
    int width;
    int height;
};

// A virtual key pressed together with Ctrl.
struct AcceleratorResource {
    int key;
    int command;
};

struct AcceleratorTable {
    int id;
    std::span<const AcceleratorResource> accelerators;
};

// A command, a submenu, or a separator, which has no text.
struct MenuItemResource {
    const WCHAR* text = nullptr;
    int command = 0;
    std::span<const MenuItemResource> submenu{};
    bool available = true;  // false while nothing answers the command
};

struct MenuResource {
    int id;
    std::span<const MenuItemResource> popups;
};

constexpr int noPopup = 0xFFFF;

struct MenuBarButton {
    int image;  // an index of the module's menu-bar pictures
    int command;
    int style;
    int popup;             // index of its popup in the menu of the bar's number, or noPopup
    const WCHAR* caption;  // shown as the tooltip
    bool available;        // false while nothing answers the command
};

struct MenuBarResource {
    int id;
    std::span<const MenuBarButton> buttons;
};

// Everything that the program's module holds.
struct ModuleResources {
    std::span<const StringResource> strings;
    std::span<const ArtResource> art;
    std::span<const ArtResource> icons;
    std::span<const ArtResource> menuBarArt;
    std::span<const AcceleratorTable> acceleratorTables;
    std::span<const MenuResource> menus;
    std::span<const MenuBarResource> menuBars;
};

// Defined by the program; the platform hands it to WinMain as the instance.
extern const ModuleResources programResources;

// Copies the string, cut to the buffer, and returns its length; 0 when there is none.
int LoadStringW(HINSTANCE instance, UINT id, WCHAR* buffer, int bufferSize);

// Null when there is no picture of that number.
HICON LoadIconW(HINSTANCE instance, int id);
HBITMAP LoadBitmapW(HINSTANCE instance, int id);
