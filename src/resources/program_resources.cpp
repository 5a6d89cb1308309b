// The module's resources by their numbers.
#include "platform/resources.h"
#include "platform/windows.h"
#include "resources/ids.h"
#include "resources/menus.h"

namespace {

constexpr StringResource strings[] = {
    {stringTitle, u"Quadrel"},
    {stringClassName, u"Quadrel"},
};

constexpr ArtResource icons[] = {
    {iconQuadrel, "quadrel.svg", 64, 64},
};

// The menu bar's pictures by their image index; index 3 is not used by any button.
constexpr ArtResource menuBarArt[] = {
    {0, "menu_main.svg", 16, 16},      {1, "menu_check.svg", 16, 16},
    {2, "menu_hint.svg", 16, 16},      {4, "menu_open.svg", 16, 16},
    {5, "menu_clues.svg", 16, 16},     {6, "menu_size.svg", 16, 16},
    {7, "menu_direction.svg", 16, 16}, {8, "menu_keyboard.svg", 16, 16},
    {9, "menu_about.svg", 16, 16},
};

constexpr ArtResource art[] = {
    {bitmapKeyboard, "keyboard.svg", 240, 44},
};

constexpr AcceleratorResource accelerators[] = {
    {'A', commandNothing},
    {'Q', commandQuit},
    {VK_DOWN, commandClose},
};

constexpr AcceleratorTable acceleratorTables[] = {
    {acceleratorTable, accelerators},
};

constexpr int dropDownButton = 0x18;
constexpr int plainButton = 0x10;

constexpr MenuBarButton menuBarButtons[] = {
    {0, commandMainMenu, dropDownButton, 0, u"Main Menu", true},
    {1, commandCheck, plainButton, noPopup, u"Checks the puzzle", true},
    {2, commandHintMenu, dropDownButton, 1, u"Display a hint", true},
    {4, commandOpen, plainButton, noPopup, u"Select a new puzzle", true},
    {5, commandClueList, plainButton, noPopup, u"Open the clue list", false},
    {6, commandSizeMenu, dropDownButton, 2, u"Puzzle magnification", true},
    {7, commandToggleDirection, plainButton, noPopup, u"Toggle clues across / down", true},
    {8, commandKeyboard, plainButton, noPopup, u"Display Keyboard", true},
    {9, commandAbout, plainButton, noPopup, u"About Quadrel", false},
};

constexpr MenuBarResource menuBars[] = {
    {menuBarMain, menuBarButtons},
};

}  // namespace

const ModuleResources programResources = {
    strings, art, icons, menuBarArt, acceleratorTables, ProgramMenus(), menuBars};
