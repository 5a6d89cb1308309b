// The screen around the program's window: menu bar, popups, input panel, boxes and the guard
// against taps that were meant for something else.
#include <gtest/gtest.h>

#include <QtCore/QScopedValueRollback>
#include <QtCore/QThread>
#include <QtGui/QMouseEvent>
#include <QtGui/QWindow>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>

#include "platform/dialogs.h"
#include "platform/qt/common/screen_geometry.h"
#include "platform/qt/host/host_window.h"
#include "platform/qt/input/tap_guard.h"
#include "platform/qt/screen/soft_input_panel.h"
#include "platform/qt/window/window.h"
#include "platform/text.h"
#include "support/menus.h"
#include "support/played_board.h"

namespace {

class MenuBarKeys : public PlayedBoard {
protected:
    // The headless screen does not see that a window which was hidden is active again; another
    // one that comes and goes makes it look.
    MenuBarKeys() {
        QWidget other;
        other.show();
        handheld->Settle();
        other.hide();
        Host().activateWindow();
        handheld->Settle();
    }
    static std::string FocusedButton() {
        QWidget* focus = Host().focusWidget();
        return focus == nullptr ? "" : focus->toolTip().toStdString();
    }
    void Key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        PressFocusedKey(*handheld, key, modifiers);
    }
};

TEST_F(MenuBarKeys, GoAroundTheButtonsThatCanBePressedAndBackToTheGame) {
    std::vector<std::string> way = {"Main Menu",
                                    "Checks the puzzle",
                                    "Display a hint",
                                    "Select a new puzzle",
                                    "Open the clue list",
                                    "Puzzle magnification",
                                    "Toggle clues across / down",
                                    "Display Keyboard",
                                    "About Quadrel",
                                    "Keyboard"};
    for (int step : {Qt::Key_Right, Qt::Key_Left}) {
        for (int key : {Qt::Key_F10, Qt::Key_Alt}) {
            Key(key);
            for (const std::string& button : way) {
                EXPECT_EQ(FocusedButton(), button);
                Key(step);
            }
            EXPECT_EQ(FocusedButton(), "Main Menu");
            Key(step == Qt::Key_Left ? int{Qt::Key_Escape} : key);
            EXPECT_EQ(FocusedButton(), "");
        }
        std::reverse(way.begin() + 1, way.end());
    }
}

// Faults: keys that are not the bar's are lost, or leave the focus there.
TEST_F(MenuBarKeys, OthersAreTheGames) {
    Play(lopsidedBoard, smallSize);
    Key(Qt::Key_F10);
    Key(Qt::Key_K);
    EXPECT_EQ(PlayerLetters()[0], 'K');
    Key(Qt::Key_F10);
    for (int step = 0; step < 6; ++step) {
        Key(Qt::Key_Right);
    }
    Key(Qt::Key_Return);
    EXPECT_EQ(Direction, 1);
    EXPECT_EQ(FocusedButton(), "");
    Key(Qt::Key_Q, Qt::ControlModifier);
    EXPECT_FALSE(handheld->Running());
}

// What a menu bar's arrows do everywhere: the first item is selected, and beside the submenus they
// go on to the neighbouring popups, around the ends.
TEST_F(MenuBarKeys, GoFromPopupToPopupWhichCloseWhenTheWindowIsResized) {
    QStringList selected;
    const NextMenu next([&selected](QMenu*) {
        for (int key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Left}) {
            auto* popup = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_NE(popup, nullptr);
            selected << popup->activeAction()->text();
            SendKey(popup, key);
        }
        Host().resize(300, 400);
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    });
    Key(Qt::Key_F10);
    Key(Qt::Key_Down);
    EXPECT_EQ(selected,
              (QStringList{"Puzzles", "Small", "Puzzles", "Available", "Current Letter"}));
}

using Screen = PlayedBoard;

// Each key that types, plain and after Shift.
TEST_F(Screen, PanelTypesWhatItsKeysShow) {
    const std::pair<int, std::string> rows[] = {{0, "1!2@3#4$5%6^7&8*9(0)-_=+"},
                                                {12, "qQwWeErRtTyYuUiIoOpP[{]}"},
                                                {18, "aAsSdDfFgGhHjJkKlL;:'\""},
                                                {30, "zZxXcCvVbBnNmM,<.>/?"},
                                                {12, "`~\\|"}};
    QLineEdit edit(&Host());
    edit.show();
    edit.setFocus();
    handheld->PressPanelButton();
    auto* panel = Host().findChild<SoftInputPanel*>();
    const auto topRow = [panel] { return panel->grab(QRect(0, 0, 200, 16)).toImage(); };
    std::string all;
    for (int row = 0; row < 5; ++row) {
        const auto& [left, characters] = rows[row];
        all += characters;
        for (std::size_t i = 0; i < characters.size(); ++i) {
            if (i % 2 == 1) {
                const QImage plain = topRow();
                handheld->TapPanel(row % 2 == 0 ? 10 : 230, 56);
                EXPECT_NE(topRow(), plain);
            }
            handheld->TapPanel(left + 9 + static_cast<int>(i / 2) * 18, row * 16 + 8);
        }
    }
    EXPECT_EQ(edit.text().toStdString(), all);
}

TEST_F(Screen, BoxAnswersYesOnlyWhenItIsMeant) {
    const std::tuple<std::vector<Qt::Key>, UINT, int> cases[] = {
        {{Qt::Key_Return}, 0, IDYES},
        {{Qt::Key_Return}, MB_DEFBUTTON2, IDNO},
        {{Qt::Key_Right, Qt::Key_Return}, 0, IDNO},
        {{Qt::Key_Left, Qt::Key_Return}, MB_DEFBUTTON2, IDYES},
        {{Qt::Key_Escape}, 0, IDNO},
        {{Qt::Key_N}, 0, IDNO},
        {{Qt::Key_Y}, MB_DEFBUTTON2, IDYES}};
    for (const auto& [keys, style, expected] : cases) {
        DoDuringNextMessageBox([&keys] {
            QWidget* box = QApplication::activeModalWidget();
            EXPECT_LE(box->width(), Host().width());
            for (Qt::Key key : keys) {
                SendKey(box->focusWidget(), key);
            }
            while (box->isVisible()) {
                QCoreApplication::processEvents();
            }
        });
        const std::u16string text = u"A question that is too long for one line, with two\nparts?";
        EXPECT_EQ(MessageBoxW(MainWindow, text.c_str(), u"Question", MB_YESNO | style), expected)
            << keys[0];
        EXPECT_EQ(TakeShownMessages(), (std::vector<ShownMessage>{{text, u"Question"}}));
    }
}

class TapGuard : public PlayedBoard {
protected:
    TapGuard() {
        Play(BoardRows(12, std::string(12, 'A')), smallSize);
        OpenBox(0);
    }

    // On the way that a tap takes from the host; the time is in milliseconds. True when it counts.
    bool Tap(POINT point, quint64 time) {
        const auto state = [] { return std::tuple(CursorRow, CursorCol, Direction); };
        const auto before = state();
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
        return state() != before;
    }
    // And closes it; the eyes need that time to see what is there now.
    void OpenBox(int milliseconds) {
        blinkMilliseconds = milliseconds;
        MessageBoxW(MainWindow, u"Text", u"Title", MB_OK);
        TakeShownMessages();
        QThread::msleep(2);
    }

    const POINT first{30, 30};
    const POINT beside{34, 27};
    const POINT away{60, 100};
    QScopedValueRollback<int> blink{blinkMilliseconds};
};

TEST_F(TapGuard, QuickTapsCountOnTheSameGroundOnly) {
    EXPECT_TRUE(Tap(first, 1000));
    EXPECT_TRUE(Tap(first, 1060));
    EXPECT_TRUE(Tap(first, 1120));
    EXPECT_TRUE(Tap(away, 1180));
    EXPECT_TRUE(Tap(first, 1200));
    OpenBox(0);
    EXPECT_FALSE(Tap(beside, 1690));
    EXPECT_FALSE(Tap(first, 2150));
    EXPECT_TRUE(Tap(first, 2700));
}

TEST_F(TapGuard, ATapElsewhereCountsAsSoonAsTheNewGroundCanBeSeen) {
    EXPECT_TRUE(Tap(first, 1000));
    OpenBox(3'600'000);
    EXPECT_FALSE(Tap(away, 1100));
    OpenBox(0);
    EXPECT_TRUE(Tap(away, 3000));
}

TEST(Text, OfPuzzlesIsWidenedByWhatItsBytesAre) {
    const std::pair<std::string, std::u16string> cases[] = {
        {"na\xC3\xAFve", u"na\u00EFve"},
        {"\x93quoted\x94 na\xEFve \x85 \x80", u"\u201Cquoted\u201D na\u00EFve \u2026 \u20AC"},
        {"\xE2\x82\xAC and \xF0\x9F\x98\x80", u"\u20AC and \U0001F600"},
        {"overlong \xC0\xAF", u"overlong \u00C0\u00AF"},
        {"surrogate \xED\xA0\x80", u"surrogate \u00ED\u00A0\u20AC"},
        {"both \xC3\xAF and \xEF", u"both \u00C3\u00AF and \u00EF"}};
    for (const auto& [bytes, wide] : cases) {
        EXPECT_EQ(WidenText(bytes), wide) << bytes;
    }
}

}  // namespace
