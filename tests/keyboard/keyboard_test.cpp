

#include "support/plain_game.h"
#include "support/played_board.h"

namespace {

// All that is yellow on the keyboard when the window is brought to the screen, for a moment or
// longer, as one rectangle.
class Flash : public QObject {
public:
    explicit Flash(Handheld& watched) : handheld(watched) {
        MainWindow->widget->installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* event) override {
        const QImage screen = event->type() == QEvent::Paint ? handheld.Client() : QImage();
        for (int i = 225 * 240; i < screen.width() * screen.height(); ++i) {
            const bool yellow = ColorAt(screen, i % 240, i / 240) == RGB(255, 255, 2);
            place |= yellow ? QRect(i % 240, i / 240, 1, 1) : QRect();
        }
        return false;
    }

    QRect place;

private:
    Handheld& handheld;
};

using Keyboard = PlayedBoard;

// The erase and "OK" keys flash as wide as drawn, the letters a column more. Only inside its lines
// a key is white.
TEST_F(Keyboard, KeysFlashWhereTheyAreDrawn) {
    ASSERT_TRUE(handheld->PressButton("Display Keyboard"));
    const QImage before = handheld->Client();
    for (const auto& [name, key] : AllKeys()) {
        if (KeyboardVisible == 0) {
            handheld->PressButton("Display Keyboard");
        }
        Flash flash(*handheld);
        const int left = key.drawn.left;
        const int middle = (key.drawn.top + key.drawn.bottom) / 2;
        handheld->Tap((left + key.drawn.right) / 2, middle);
        const int beyond = name == okKey ? 1 : 0;
        EXPECT_EQ(flash.place, QRect(QPoint(left + 1, key.drawn.top + 1),
                                     QPoint(key.drawn.right - beyond, key.drawn.bottom - 1)))
            << static_cast<char>(name);
        EXPECT_EQ(std::pair(ColorAt(before, left, middle), ColorAt(before, left + 1, middle)),
                  std::pair(RGB(0, 0, 0), RGB(255, 255, 255)));
        EXPECT_EQ(KeyboardVisible, name == okKey ? 0 : 1);
    }
}

}  // namespace
