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
};

struct MenuBarResource {
    int id;
    std::span<const MenuBarButton> buttons;
};

enum class ControlKind {
    PushButton,
    DefaultButton,  // the push button that Enter presses
    RadioButton,    // the radio buttons of a dialog are one group; a press selects
    CheckBox,       // a press toggles
    GroupBox,
    Static,   // text
    Picture,  // a bitmap of the module at its own size
    ListBox,
    TabControl,  // its tabs hang at the bottom
    EditBox,     // one line that scrolls
};

// Places are dialog units. A text that needs more room than its place runs on to the right.
struct ControlResource {
    int id;  // noControlId where nothing asks for the control
    ControlKind kind;
    const WCHAR* text;
    int x;
    int y;
    int width;
    int height;
    int bitmap = 0;  // of a picture
};

constexpr int noControlId = -1;

// The controls are in the order of the Tab key; a later one lies over an earlier one.
struct DialogResource {
    int id;
    const WCHAR* title;
    const WCHAR* fontFace;
    int fontPoints;
    int width;  // dialog units
    int height;
    std::span<const ControlResource> controls;
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
    std::span<const DialogResource> dialogs;
};

// Defined by the program; the platform hands it to WinMain as the instance.
extern const ModuleResources programResources;

// Copies the string, cut to the buffer, and returns its length; 0 when there is none.
int LoadStringW(HINSTANCE instance, UINT id, WCHAR* buffer, int bufferSize);

using HRSRC = const DialogResource*;
using HGLOBAL = const DialogResource*;
constexpr int RT_DIALOG = 5;

// Dialogs only; null when there is none of that number. What is found is loaded already.
HRSRC FindResourceW(HINSTANCE instance, int id, int type);
HGLOBAL LoadResource(HINSTANCE instance, HRSRC resource);

// Null when there is no picture of that number.
HICON LoadIconW(HINSTANCE instance, int id);
HBITMAP LoadBitmapW(HINSTANCE instance, int id);
