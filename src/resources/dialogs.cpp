#include "resources/dialogs.h"

#include "model/board_sizes.h"
#include "platform/dialogs.h"
#include "resources/ids.h"

namespace {

using enum ControlKind;

constexpr int fontPoints = 8;

constexpr ControlResource clueListControls[] = {
    {noControlId, Static, u"Across / Down Clues", 5, 5, 66, 8},
    {controlClues, ListBox, u"", 4, 20, 129, 97},
    {controlClueTabs, TabControl, u"Tab1", 4, 108, 129, 14},
    {IDOK, DefaultButton, u"OK", 5, 135, 50, 14},
};

constexpr ControlResource SizeButton(const BoardSize& size, int x, int width) {
    return {size.control, RadioButton, size.name, x, 21, width, 10};
}

constexpr ControlResource preferencesControls[] = {
    {controlSizeGroup, GroupBox, u"Screen Magnification", 5, 6, 142, 34},
    SizeButton(boardSizes[0], 11, 33),
    SizeButton(boardSizes[1], 60, 41),
    SizeButton(boardSizes[2], 108, 34),
    {controlToggleGroup, GroupBox, u"Toggle Options", 5, 47, 142, 32},
    {controlAutoSkip, CheckBox, u"Auto Skip", 13, 62, 47, 10},
    {controlShowNumbers, CheckBox, u"Show Numbers", 73, 62, 64, 10},
    {controlColorGroup, GroupBox, u"Color Options", 5, 88, 142, 38},
    {noControlId, Static, u"Square Color", 13, 100, 72, 9},
    {controlSquareColor, PushButton, u"", 91, 99, 12, 10},
    {noControlId, Static, u"Background Color", 13, 113, 72, 9},
    {controlBackgroundColor, PushButton, u"", 91, 113, 12, 10},
    {IDOK, PushButton, u"OK", 8, 133, 35, 15},
};

// The keyboard is for the edit box, and Enter there gets its link.
constexpr ControlResource downloadControls[] = {
    {controlDownloadHeading, Static, u"Download Puzzles", 7, 5, 100, 12},
    {controlLinks, ListBox, u"", 7, 22, 102, 53},
    {controlDeleteLink, PushButton, u"Delete", 115, 22, 34, 14},
    {controlGetNew, PushButton, u"Get New", 115, 39, 34, 14},
    {controlLink, EditBox, u"", 7, 83, 102, 14},
    {controlGet, DefaultButton, u"Get", 115, 82, 34, 14},
    {controlKeepLinks, PushButton, u"OK", 7, 104, 50, 14},
    {noControlId, Static, u"Puzzles: shop.example.com\nand bundles.example.com", 7, 123, 112, 28},
};

constexpr ControlResource HelpIcon(int bitmap, int y) {
    return {noControlId, Picture, u"", 15, y, 13, 12, bitmap};
}
constexpr ControlResource HelpCaption(const WCHAR* text, int y) {
    return {noControlId, Static, text, 33, y, 140, 8};
}

constexpr ControlResource quickHelpControls[] = {
    {controlHelpClose, DefaultButton, u"OK", 14, 130, 41, 14},
    {controlHelpOpen, PushButton, u"Help", 62, 130, 41, 14},
    HelpIcon(123, 9),
    HelpCaption(u"Main Menu", 11),
    HelpIcon(124, 22),
    HelpCaption(u"Checks the puzzle", 24),
    HelpIcon(125, 35),
    HelpCaption(u"Display a hint", 37),
    HelpIcon(126, 48),
    HelpCaption(u"Puzzle magnification", 50),
    HelpIcon(128, 61),
    HelpCaption(u"Select a new puzzle", 63),
    HelpIcon(131, 74),
    HelpCaption(u"Toggle clues across / down", 76),
    HelpIcon(127, 87),
    HelpCaption(u"Open the clue list", 89),
    HelpIcon(130, 100),
    HelpCaption(u"Display Keyboard", 102),
    HelpIcon(116, 113),
    HelpCaption(u"About Quadrel", 115),
};

constexpr ControlResource aboutControls[] = {
    {controlAboutClose, PushButton, u"OK", 7, 139, 35, 14},
};

constexpr DialogResource dialogs[] = {
    {dialogDownload, u"Download Puzzles", u"MS Sans Serif", fontPoints, 240, 270, downloadControls},
    {dialogAbout, u"About Quadrel", u"System", fontPoints, 160, 194, aboutControls},
    {dialogPreferences, u"Preferences", u"MS Sans Serif", fontPoints, 188, 205,
     preferencesControls},
    {dialogClueList, u"Quadrel Clues", u"System", fontPoints, 186, 206, clueListControls},
    {dialogQuickHelp, u"Quadrel Quick Help", u"System", fontPoints, 186, 206, quickHelpControls},
};

}  // namespace

std::span<const DialogResource> ProgramDialogs() {
    return dialogs;
}
