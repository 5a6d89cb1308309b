#include "dialogs/first_block.h"

#include <algorithm>
#include <iterator>
#include <string>

#include "model/puzzle.h"
#include "platform/text.h"

namespace {

// Of the whole title, and of what is kept of it.
constexpr std::size_t titleLimit = 50;
constexpr std::size_t nameLimit = 10;

std::size_t ByteAt(std::string_view block, std::size_t offset) {
    return offset < block.size() ? static_cast<unsigned char>(block[offset]) : 0;
}

bool IsNamePart(char16_t unit) {
    return (unit >= u'A' && unit <= u'Z') || (unit >= u'a' && unit <= u'z') ||
           (unit >= u'0' && unit <= u'9');
}

bool StartsGrid(char cell) {
    return cell == blackSquare || (cell >= 'A' && cell <= 'Z');
}

// Between the sizes and the solution lie four zero bytes, and perhaps more.
std::string_view FromGrid(std::string_view block) {
    std::string_view rest = block.substr(heightOffset);
    for (int zeros = 0; zeros < 4; ++zeros) {
        const std::size_t zero = rest.find('\0');
        if (zero == rest.npos) {
            return {};
        }
        rest.remove_prefix(zero + 1);
    }
    rest.remove_prefix(static_cast<std::size_t>(std::find_if(rest.begin(), rest.end(), StartsGrid) -
                                                rest.begin()));
    return rest;
}

std::string_view TitleIn(std::string_view block) {
    const std::size_t grids = 2 * ByteAt(block, widthOffset) * ByteAt(block, heightOffset);
    std::string_view rest = FromGrid(block);
    rest.remove_prefix(std::min(grids, rest.size()));
    return rest.substr(0, rest.find('\0'));
}

}  // namespace

bool IsSquarePuzzle(std::string_view block) {
    const std::size_t width = ByteAt(block, widthOffset);
    return width != 0 && width == ByteAt(block, heightOffset);
}

bool IsWebPage(std::string_view block) {
    block.remove_prefix(std::min(block.find_first_not_of(" \t\r\n"), block.size()));
    std::string start(block.substr(0, 9));
    std::transform(start.begin(), start.end(), start.begin(),
                   [](char each) { return each >= 'A' && each <= 'Z' ? each + 32 : each; });
    return start.starts_with("<!doctype") || start.starts_with("<html") ||
           start.starts_with("<?xml");
}

std::u16string SuggestedName(std::string_view block) {
    const std::u16string title = WidenText(TitleIn(block)).substr(0, titleLimit);
    std::u16string name;
    std::copy_if(title.begin(), title.end(), std::back_inserter(name), IsNamePart);
    return name.substr(0, nameLimit);
}
