#include "resources/menus.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "model/board_sizes.h"
#include "resources/ids.h"

namespace {

constexpr MenuItemResource separator{};

constexpr MenuItemResource puzzlesItems[] = {
    {u"Available", commandAvailable},
    {u"Download", commandDownload},
};
constexpr MenuItemResource toggleItems[] = {
    {u"Auto Skip", commandAutoSkip},
    {u"Numbers", commandNumbers},
};
constexpr MenuItemResource fillItems[] = {
    {u"Letter", commandFillLetter},
    {u"Word", commandFillWord},
    {u"Puzzle", commandFillPuzzle},
};
constexpr MenuItemResource clearItems[] = {
    {u"Letter", commandClearLetter},
    {u"Word", commandClearWord},
    {u"Puzzle", commandClearPuzzle},
};
constexpr MenuItemResource viewItems[] = {
    {u"Letter", commandHintLetter},
    {u"Word", commandHintWord},
    {u"Puzzle", commandHintPuzzle},
};

constexpr MenuItemResource mainItems[] = {
    {u"Puzzles", 0, puzzlesItems},
    {u"Toggle", 0, toggleItems},
    {u"Fill", 0, fillItems},
    {u"Clear", 0, clearItems},
    {u"Preferences", commandPreferences},
    {u"Puzzle Info", commandPuzzleInfo},
    separator,
    {u"Help", commandHelp},
    {u"About", commandAbout},
    separator,
    {u"Exit", commandExit},
};
constexpr MenuItemResource hintItems[] = {
    {u"Current Letter", commandHintLetter},
    {u"Current Word", commandHintWord},
    {u"Entire Puzzle", commandHintPuzzle},
};
constexpr auto sizeItems = [] {
    std::array<MenuItemResource, std::size(boardSizes)> items{};
    std::transform(std::begin(boardSizes), std::end(boardSizes), items.begin(),
                   [](const BoardSize& size) {
                       return MenuItemResource{size.name, size.command};
                   });
    return items;
}();
constexpr MenuItemResource contextItems[] = {
    {u"Clear", 0, clearItems},
    {u"Fill", 0, fillItems},
    {u"View", 0, viewItems},
};

constexpr MenuItemResource menuBarPopups[] = {
    {u"", 0, mainItems},
    {u"", 0, hintItems},
    {u"", 0, sizeItems},
};
constexpr MenuItemResource contextPopups[] = {
    {u"", 0, contextItems},
};

constexpr MenuResource menus[] = {
    {menuMain, menuBarPopups},
    {menuContext, contextPopups},
};

}  // namespace

std::span<const MenuResource> ProgramMenus() {
    return menus;
}
