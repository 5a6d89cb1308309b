#include "tools/puzzle_characters.h"

#include <cstddef>

#include "platform/text.h"

namespace puzzle_text {

namespace {

// What a reader makes of each byte from 0x80 on, alone.
std::u16string WindowsCharacters() {
    std::u16string characters;
    for (int byte = 0x80; byte <= 0xFF; ++byte) {
        characters += WidenText(std::string(1, static_cast<char>(byte)));
    }
    return characters;
}

}  // namespace

// Bytes that are no UTF-8 are widened one by one, and come back as others.
bool IsUtf8(std::string_view text) {
    return NarrowPath(WidenText(text)) == text;
}

std::string_view FirstCharacter(std::string_view text) {
    std::size_t end = 1;
    while (end < text.size() && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80) {
        ++end;
    }
    return text.substr(0, end);
}

// Some texts, such as "Ã©", are the UTF-8 of another one when they are in Windows-1252.
std::string EncodeText(std::string_view text) {
    static const std::u16string windowsCharacters = WindowsCharacters();
    const std::u16string wide = WidenText(text);
    std::string encoded;
    for (const char16_t character : wide) {
        const std::size_t found = windowsCharacters.find(character);
        encoded += static_cast<char>(found == std::u16string::npos ? character : 0x80 + found);
    }
    return WidenText(encoded) == wide ? encoded : std::string(text);
}

}  // namespace puzzle_text
