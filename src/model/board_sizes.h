// The sizes that a board can be shown in. A new one needs a line here, its two numbers in ids.h, a
// flag in MagnificationFlags and a place in the preferences.
#pragma once

#include "platform/types.h"
#include "resources/ids.h"

struct MagnificationFlags {
    int Small = 1;
    int Medium = 0;
    int Large = 0;
};

struct BoardSize {
    const WCHAR* name;
    int command;   // of its menu item
    int control;   // of its button in the preferences
    int cellSide;  // logical pixels; 0: the whole board fits into the view
    bool showsNumbers;
    int MagnificationFlags::*flag;

    constexpr bool FitsView() const {
        return cellSide == 0;
    }
};

// In the order of the records' magnification numbers.
inline constexpr BoardSize boardSizes[] = {
    {u"Small", commandSmall, controlSmall, 0, false, &MagnificationFlags::Small},
    {u"Medium", commandMedium, controlMedium, 20, true, &MagnificationFlags::Medium},
    {u"Large", commandLarge, controlLarge, 24, true, &MagnificationFlags::Large},
};
