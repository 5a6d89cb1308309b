// Dialog units: for the 8-point font, a unit is 6/4 of a logical pixel across and 13/8 down.
#pragma once

#include "platform/resources.h"

constexpr int PixelsAcross(int units) {
    return (units * 6 + 2) / 4;
}
constexpr int PixelsDown(int units) {
    return (units * 13 + 4) / 8;
}

constexpr RECT DialogUnitsToPixels(const ControlResource& control) {
    return {PixelsAcross(control.x), PixelsDown(control.y), PixelsAcross(control.x + control.width),
            PixelsDown(control.y + control.height)};
}
