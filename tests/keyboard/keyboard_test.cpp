#include "keyboard/keyboard_keys.h"
#include "support/plain_game.h"
#include "support/played_board.h"

namespace {

using Keyboard = PlayedBoard;

// Only inside its lines a key is white.
TEST_F(Keyboard, EveryKeyIsFoundWhereItCountsAndFlashesWhereItIsDrawn) {
    ASSERT_TRUE(handheld->PressButton("Display Keyboard"));
    for (const auto& [name, key] : AllKeys()) {
        const int left = key.flash.left;
        const int middle = (key.flash.top + key.flash.bottom) / 2;
        EXPECT_EQ(std::pair(handheld->Pixel(left, middle), handheld->Pixel(left + 1, middle)),
                  std::pair(RGB(0, 0, 0), RGB(255, 255, 255)));
        for (int i = 225 * 240; i < 270 * 240; ++i) {
            const KeyboardKey found = FindKey(i % 240, i / 240);
            const bool isIt = found.kind != KeyboardKey::Kind::None && found.place.left == left &&
                              found.place.top == key.flash.top;
            EXPECT_EQ(isIt, IsIn(key.taps, {i % 240, i / 240}));
        }
    }
}

}  // namespace
