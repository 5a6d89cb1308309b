#include <gtest/gtest.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QThread>
#include <QtGui/QMouseEvent>
#include <QtGui/QWindow>

#include "platform/dialogs.h"
#include "platform/qt/common/screen_geometry.h"
#include "platform/qt/host/host_window.h"
#include "platform/qt/window/window.h"
#include "support/played_board.h"

namespace {

constexpr POINT first = {30, 30};
constexpr POINT beside = {34, 27};
constexpr POINT away = {60, 100};

class TapGuard : public PlayedBoard {
protected:
    TapGuard() {
        Play(BoardRows(12, std::string(12, 'A')), smallSize);
        WaitForEyes();
        Tap(away, 0);
    }

    // On the way that a tap takes from the host; the time is in milliseconds.
    void Tap(POINT point, quint64 time) {
        const RECT frame = MainWindow->frame;
        const LONG x = frame.left + point.x;
        const LONG y = frame.top + point.y;
        const QPointF place = ExactPlace({x, y, x + 1, y + 1}).center();
        for (QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            const auto held = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
            QMouseEvent event(type, place, Host().mapToGlobal(place), Qt::LeftButton, held,
                              Qt::NoModifier);
            event.setTimestamp(time + 1000000);
            QCoreApplication::sendEvent(Host().windowHandle(), &event);
        }
        handheld->Settle();
    }
    static void ShowBox() {
        MessageBoxW(MainWindow, u"Text", u"Title", MB_OK);
        TakeShownMessages();
    }
    static void WaitForEyes() {
        QThread::msleep(250);
    }
    static int CellSelected() {
        return CursorRow * PuzzleWidth + CursorCol;
    }
};

TEST_F(TapGuard, ATapCountsAsSoonAsTheGameIsThere) {
    Restart();
    Play(BoardRows(12, std::string(12, 'A')), smallSize);
    const int cell = CellSelected();
    Tap(away, 1000);
    EXPECT_NE(CellSelected(), cell);
}

TEST_F(TapGuard, QuickTapsOnTheSameGroundAllCount) {
    Tap(first, 1000);
    const int cell = CellSelected();
    const int direction = Direction;
    Tap(first, 1060);
    EXPECT_NE(Direction, direction);
    Tap(first, 1120);
    EXPECT_EQ(Direction, direction);
    Tap(away, 1180);
    EXPECT_NE(CellSelected(), cell);
}

TEST_F(TapGuard, TheSecondTapOfAPairNeverReachesNewGround) {
    Tap(first, 1000);
    const int direction = Direction;
    ShowBox();
    WaitForEyes();
    Tap(beside, 1490);
    EXPECT_EQ(Direction, direction);
    Tap(first, 1950);
    EXPECT_EQ(Direction, direction);
    Tap(first, 2500);
    EXPECT_NE(Direction, direction);
}

TEST_F(TapGuard, ATapElsewhereCountsAsSoonAsTheNewGroundCanBeSeen) {
    Tap(first, 1000);
    const int cell = CellSelected();
    ShowBox();
    Tap(away, 1100);
    EXPECT_EQ(CellSelected(), cell);
    WaitForEyes();
    ShowBox();
    WaitForEyes();
    Tap(first, 1300);
    EXPECT_EQ(CellSelected(), cell);
    Tap(away, 1350);
    EXPECT_NE(CellSelected(), cell);
}

}  // namespace
