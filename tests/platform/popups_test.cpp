#include <gtest/gtest.h>

#include <QtWidgets/QApplication>
#include <QtWidgets/QMenu>
#include <algorithm>

#include "platform/qt/host/host_window.h"
#include "support/menus.h"
#include "support/played_board.h"

namespace {

class Popups : public PlayedBoard {
protected:
    // Does something while the popup of the main menu is open.
    void DoInMainMenu(const std::function<void(QMenu*)>& action) {
        bool opened = false;
        const NextMenu next([&](QMenu* menu) {
            opened = true;
            action(menu);
        });
        handheld->PressButton("Main Menu");
        EXPECT_TRUE(opened);
    }
};

// From the first to the last column that has anything else than the background.
int InkWidth(const QImage& item) {
    int first = item.width();
    int last = -1;
    for (int y = 0; y < item.height(); ++y) {
        for (int x = 0; x < item.width(); ++x) {
            if (item.pixel(x, y) != item.pixel(0, 0)) {
                first = std::min(first, x);
                last = std::max(last, x);
            }
        }
    }
    return last - first + 1;
}

TEST_F(Popups, ShowTheirTextsWholeAtEverySize) {
    for (double magnification : {1.0, 1.5, 2.0, 3.0, 4.0}) {
        handheld->Resize(magnification);
        DoInMainMenu([magnification](QMenu* menu) {
            const QImage image = menu->grab().toImage();
            const QFontMetrics metrics(menu->font());
            for (QAction* action : menu->actions()) {
                if (action->menu() == nullptr && !action->isSeparator()) {
                    // Without the frame.
                    const QRect place = menu->actionGeometry(action).adjusted(2, 2, -2, -2);
                    EXPECT_GE(InkWidth(image.copy(place)),
                              metrics.tightBoundingRect(action->text()).width() - 1)
                        << action->text().toStdString() << " at " << magnification;
                }
            }
        });
    }
}

TEST_F(Popups, CloseWithTheirSubmenusWhenTheWindowIsResized) {
    DoInMainMenu([](QMenu* menu) {
        SendKey(menu, Qt::Key_Down);
        SendKey(menu, Qt::Key_Right);
        EXPECT_NE(QApplication::activePopupWidget(), menu) << "a submenu";
        Host().resize(300, 400);
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    });
}

TEST_F(Popups, AtTheEdgeOfTheScreenAreMovedToBeWhole) {
    for (const POINT point : {POINT{2, 2}, POINT{237, 2}, POINT{2, 260}, POINT{237, 260}}) {
        QRect place;
        const NextMenu next([&place](QMenu* menu) { place = menu->geometry(); });
        handheld->RightClick(point.x, point.y);
        EXPECT_TRUE(place.isValid());
        EXPECT_TRUE(Host().geometry().contains(place)) << point.x << ", " << point.y;
    }
}

}  // namespace
