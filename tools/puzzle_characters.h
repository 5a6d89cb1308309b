// The characters of a puzzle's texts: UTF-8 where they are written, and as the file holds them.
#pragma once

#include <string>
#include <string_view>

namespace puzzle_text {

bool IsUtf8(std::string_view text);

// Of UTF-8 text that is not empty: all bytes of its first character.
std::string_view FirstCharacter(std::string_view text);

// UTF-8 text as the file holds it: in Windows-1252 if that shows it rightly, or else as it is.
std::string EncodeText(std::string_view text);

}  // namespace puzzle_text
