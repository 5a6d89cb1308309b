// The module's resources by their numbers.
#include "platform/resources.h"
#include "platform/windows.h"
#include "resources/dialogs.h"
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
    {116, "help_about.svg", 19, 19},
    {123, "help_main.svg", 19, 19},
    {124, "help_check.svg", 19, 19},
    {125, "help_hint.svg", 19, 19},
    {126, "help_size.svg", 19, 19},
    {127, "help_clues.svg", 19, 19},
    {128, "help_open.svg", 19, 19},
    {130, "help_keyboard.svg", 19, 19},
    {131, "help_direction.svg", 19, 19},
    {bitmapAbout, "about.svg", 240, 320},
    {bitmapKeyboard, "keyboard.svg", 240, 44},
    {bitmapLogoLeft, "logo_left.svg", 62, 91},
    {bitmapLogoTop, "logo_top.svg", 64, 84},
    {bitmapLogoRight, "logo_right.svg", 27, 84},
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
    {0, commandMainMenu, dropDownButton, 0, u"Main Menu"},
    {1, commandCheck, plainButton, noPopup, u"Checks the puzzle"},
    {2, commandHintMenu, dropDownButton, 1, u"Display a hint"},
    {4, commandOpen, plainButton, noPopup, u"Select a new puzzle"},
    {5, commandClueList, plainButton, noPopup, u"Open the clue list"},
    {6, commandSizeMenu, dropDownButton, 2, u"Puzzle magnification"},
    {7, commandToggleDirection, plainButton, noPopup, u"Toggle clues across / down"},
    {8, commandKeyboard, plainButton, noPopup, u"Display Keyboard"},
    {9, commandAbout, plainButton, noPopup, u"About Quadrel"},
};

constexpr MenuBarResource menuBars[] = {
    {menuBarMain, menuBarButtons},
};

}  // namespace

const ModuleResources programResources = {
    strings, art, icons, menuBarArt, acceleratorTables, ProgramMenus(), menuBars, ProgramDialogs()};
