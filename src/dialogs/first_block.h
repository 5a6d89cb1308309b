// What the first block of a download tells about the puzzle in it. Nothing is believed about the
// block: it may be of any length and hold anything.
#pragma once

#include <string>
#include <string_view>

bool IsSquarePuzzle(std::string_view block);
// By its first tag: its bytes may look like sizes.
bool IsWebPage(std::string_view block);

// The puzzle's title, made up as a file name: its plain letters and digits, at most ten. Empty when
// there is no title to be found. Of the block of a square puzzle only.
std::u16string SuggestedName(std::string_view block);
