// Which key of the on-screen keyboard lies under a point.
#pragma once

#include "platform/types.h"

struct KeyboardKey {
    enum class Kind { None, Letter, Erase, Ok };
    Kind kind = Kind::None;
    char letter = 0;  // upper case; letters only
    RECT place;       // client pixels, right and bottom exclusive
};

// A client point of the main window. The zones that count as a key are wider than its picture.
KeyboardKey FindKey(int x, int y);
