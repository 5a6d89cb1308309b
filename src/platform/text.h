// Text between the 8-bit bytes of files and the wide characters of the screen.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// Puzzle text: UTF-8 where it is valid and holds a multibyte character, else Windows-1252.
std::u16string WidenText(std::string_view text);

// Paths and links: UTF-8 both ways. Broken bytes become the replacement character.
std::u16string WidenPath(std::string_view path);
std::string NarrowPath(std::u16string_view path);

std::u16string DecimalText(int number);
// Lower-case digits, without leading zeros.
std::u16string HexadecimalText(std::uint32_t number);
