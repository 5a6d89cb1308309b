// The path buffers of 260 wide characters that the file operations are given. When one fails, a
// short text takes the path's place.
#pragma once

#include <algorithm>
#include <string_view>

#include "platform/types.h"

// False, with the buffer unchanged, when the text has more than 259 characters.
inline bool CopyPath(std::u16string_view text, WCHAR* buffer) {
    if (text.size() >= MAX_PATH) {
        return false;
    }
    *std::copy(text.begin(), text.end(), buffer) = u'\0';
    return true;
}
