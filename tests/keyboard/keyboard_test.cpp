#include "keyboard/keyboard_keys.h"
#include "support/plain_game.h"
#include "support/played_board.h"

namespace {

using Keyboard = PlayedBoard;

// Only inside its lines a key is white.
TEST_F(Keyboard, EveryKeyIsFoundWhereItCountsAndFlashesWhereItIsDrawn) {
    ASSERT_TRUE(handheld->PressButton("Display Keyboard"));
    const QImage screen = handheld->Client();
    for (const auto& [name, key] : AllKeys()) {
        const int left = key.flash.left;
        const int middle = (key.flash.top + key.flash.bottom) / 2;
        EXPECT_EQ(std::pair(ColorAt(screen, left, middle), ColorAt(screen, left + 1, middle)),
                  std::pair(RGB(0, 0, 0), RGB(255, 255, 255)));
    }
    for (int i = 225 * 240; i < 270 * 240; ++i) {
        const POINT point{i % 240, i / 240};
        POINT expected;
        for (const auto& [name, key] : AllKeys()) {
            expected = IsIn(key.taps, point) ? POINT{key.flash.left, key.flash.top} : expected;
        }
        const RECT found = FindKey(point.x, point.y).place;
        EXPECT_EQ(std::pair(found.left, found.top), std::pair(expected.x, expected.y));
    }
}

}  // namespace
