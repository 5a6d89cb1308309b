#include <gtest/gtest.h>

#include <QtCore/QEvent>
#include <QtWidgets/QWidget>

#include "platform/qt/window/window.h"
#include "support/plain_game.h"
#include "support/played_board.h"

namespace {

// What the window holds while it is brought to the screen: what a player sees for a moment.
class Glimpses : public QObject {
public:
    explicit Glimpses(std::function<void()> whenShown) : look(std::move(whenShown)) {
        MainWindow->widget->installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            look();
        }
        return false;
    }

private:
    std::function<void()> look;
};

class Keyboard : public PlayedBoard {
protected:
    Keyboard() {
        EXPECT_TRUE(handheld->PressButton("Display Keyboard"));
    }
    // All that was yellow on the keyboard while the point was tapped, as one rectangle.
    QRect FlashOf(POINT point) {
        QRect flash;
        const Glimpses glimpses([&] {
            for (int y = 225; y < 268; ++y) {
                for (int x = 0; x < 240; ++x) {
                    const bool yellow = handheld->Pixel(x, y) == RGB(255, 255, 2);
                    flash |= yellow ? QRect(x, y, 1, 1) : QRect();
                }
            }
        });
        handheld->Tap(point.x, point.y);
        return flash;
    }
};

// Faults: a key drawn elsewhere than it is tapped, a flash that is missing, shifted or stays, one
// where there is no key. The erase and "OK" keys flash as wide as drawn, the letters a column more.
TEST_F(Keyboard, KeysFlashWhereTheyAreDrawn) {
    const QImage before = handheld->Client();
    EXPECT_EQ(FlashOf({205, 246}), QRect());
    for (const auto& [name, key] : AllKeys()) {
        SCOPED_TRACE(std::string(1, static_cast<char>(name)));
        const POINT middle{(key.drawn.left + key.drawn.right) / 2,
                           (key.drawn.top + key.drawn.bottom) / 2};
        for (int x : {key.drawn.left, key.drawn.right}) {
            EXPECT_EQ(ColorAt(before, x, middle.y), RGB(0, 0, 0));
        }
        for (int y : {key.drawn.top, key.drawn.bottom}) {
            EXPECT_EQ(ColorAt(before, middle.x, y), RGB(0, 0, 0));
        }
        EXPECT_EQ(ColorAt(before, key.drawn.left + 1, middle.y), RGB(255, 255, 255));
        if (KeyboardVisible == 0) {
            handheld->PressButton("Display Keyboard");
        }
        const int beyond = name == okKey ? 1 : 0;
        EXPECT_EQ(FlashOf(middle), QRect(QPoint(key.drawn.left + 1, key.drawn.top + 1),
                                         QPoint(key.drawn.right - beyond, key.drawn.bottom - 1)));
        EXPECT_EQ(KeyboardVisible, name == okKey ? 0 : 1);
    }
}

}  // namespace
