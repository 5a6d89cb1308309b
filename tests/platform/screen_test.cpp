// The screen around the program's window: its furniture - title bar, menu bar and soft input panel
// - popups, boxes, windows and the guard against taps that were meant for something else.

#include "platform/qt/input/hold_cue.h"
#include "platform/qt/input/tap_guard.h"
#include "platform/qt/screen/bar_button.h"
#include "platform/shell.h"
#include "support/menus.h"
#include "support/played_board.h"

namespace {

// Takes what the panel types from the program, and puts all that is lit meanwhile into one picture.
struct TypedKeys : QObject {
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::KeyPress) {
            return false;
        }
        const auto* key = static_cast<QKeyEvent*>(event);
        const QString name = QKeySequence(key->keyCombination()).toString();
        if (names.isEmpty() || names.last() != name) {
            names << name;
            texts += key->text();
        }
        const QImage now = Host().grab().toImage();
        for (int i = 0; i < now.width() * now.height(); ++i) {
            const QPoint point(i % now.width(), i / now.width());
            if (now.pixel(point) != rest.pixel(point)) {
                lit.setPixel(point, now.pixel(point));
            }
        }
        return true;
    }

    QStringList names;
    QString texts;
    QImage rest = Host().grab().toImage();
    QImage lit = rest;
};

class Screen : public PlayedBoard {
protected:
    // The headless screen does not see that a window which was hidden is active again.
    Screen() {
        QApplication::setActiveWindow(&Host());
    }
    ~Screen() override {
        handheld->Resize(1);
    }
    void Press(std::initializer_list<int> keys) {
        for (int key : keys) {
            PressFocusedKey(*handheld, key);
        }
    }
};

TEST_F(Screen, LooksAsRecordedAndThePanelTypesWhatItsKeysShow) {
    const char* const names =
        "1 2 3 4 5 6 7 8 9 0 - = Backspace Q W E R T Y U I O P [ ] A S D F G H J K L ; ' Return "
        "Z X C V B N M , . / ` \\ Space Left Up Down Right";
    const char* const texts[] = {"1234567890-=qwertyuiop[]asdfghjkl;'zxcvbnm,./`\\ ",
                                 "!@#$%^&*()_+QWERTYUIOP{}ASDFGHJKL:\"ZXCVBNM<>?~| "};
    for (const QSize& window : {QSize(240, 320), QSize(329, 440), QSize(480, 700)}) {
        const std::string size = std::to_string(window.width());
        Host().resize(window);
        handheld->Settle();
        handheld->PressPanelButton();
        ExpectLooksAsRecorded(handheld->Screen(), "Panel at " + size);
        handheld->TapPanel(15, 56);  // Shift
        ExpectLooksAsRecorded(handheld->Screen(), "Shifted panel at " + size);
        handheld->TapPanel(225, 56);  // the other one
        for (int shift = 0; shift < 2 && window.width() == 329; ++shift) {
            TypedKeys keys;
            MainWindow->widget->installEventFilter(&keys);
            for (int i = 0; i < 200; ++i) {
                const int x = i % 40 * 6 + 3;
                const int y = i / 40 * 16 + 8;
                // Beside the keys nothing ends Shift.
                if ((y == 40 && x < 18) || (y == 56 && (x < 30 || x > 210))) {
                    continue;
                }
                if (shift == 1) {
                    handheld->TapPanel(x < 99 ? 15 : 225, 56);
                }
                handheld->TapPanel(x, y);
            }
            EXPECT_EQ(keys.texts.toStdString(), texts[shift]);
            EXPECT_EQ(keys.names.filter("Shift+").size(), shift * keys.names.size());
            EXPECT_EQ(keys.names.join(' ').remove("Shift+").toStdString(), names);
            EXPECT_EQ(handheld->Screen(), keys.rest);
            ExpectLooksAsRecorded(keys.lit, "Pressed panel " + std::to_string(shift));
        }
        handheld->PressPanelButton();
    }
}

TEST_F(Screen, TipsStandAboveTheirButtonsOfWhichThePanelsCanBeHidden) {
    handheld->Resize(2);
    const auto buttons = Host().findChildren<BarButton*>();
    for (auto* button : buttons) {
        QHelpEvent event(QEvent::ToolTip, QPoint(), button->mapToGlobal(QPoint()));
        QCoreApplication::sendEvent(button, &event);
        EXPECT_EQ(QToolTip::text(), button->toolTip());
        EXPECT_EQ(QToolTip::font().pixelSize(), 20);
        for (const QWidget* tip : QApplication::topLevelWidgets()) {
            EXPECT_TRUE(!tip->inherits("QTipLabel") ||
                        tip->geometry().bottom() < button->mapToGlobal(QPoint()).y());
        }
    }
    QToolTip::hideText();
    SHFullScreen(MainWindow, SHFS_HIDESIPBUTTON);
    EXPECT_EQ(std::count_if(buttons.begin(), buttons.end(), std::mem_fn(&QWidget::isHidden)), 1);
    SHFullScreen(MainWindow, SHFS_SHOWSIPBUTTON);
}

// Faults: keys that are not the bar's are lost, or leave the focus there.
TEST_F(Screen, KeysGoAroundTheButtonsThatCanBePressedAndOthersAreTheGames) {
    for (const auto& [opening, step, closing] :
         {std::tuple(Qt::Key_F10, 1, Qt::Key_F10), {Qt::Key_Alt, 9, Qt::Key_Escape}}) {
        Press({opening});
        for (int index = 0; index <= step * 10; index += step) {
            EXPECT_EQ(Host().focusWidget()->x(), std::min(index % 10 * 24, 216));
            Press({step == 1 ? Qt::Key_Right : Qt::Key_Left});
        }
        ExpectLooksAsRecorded(handheld->Screen(), "Focus after " + std::to_string(step));
        Press({closing});
        EXPECT_EQ(Host().focusWidget(), MainWindow->widget);
    }
    Press({Qt::Key_F10, Qt::Key_K, Qt::Key_F10, Qt::Key_Left, Qt::Key_Left, Qt::Key_Left,
           Qt::Key_Left, Qt::Key_Return});
    EXPECT_EQ(std::pair(PlayerLetters()[0], Direction), std::pair('K', 1));
    for (const auto& [type, key] : {std::pair(QEvent::KeyPress, Qt::Key_Alt),
                                    {QEvent::KeyPress, Qt::Key_X},
                                    {QEvent::KeyRelease, Qt::Key_Alt}}) {
        QKeyEvent event(type, key, Qt::AltModifier);
        QCoreApplication::sendEvent(MainWindow->widget, &event);
    }
    EXPECT_EQ(Host().focusWidget(), MainWindow->widget) << "Alt with another key is none alone";
    PressFocusedKey(*handheld, Qt::Key_Q, Qt::ControlModifier);
    EXPECT_FALSE(handheld->Running());
}

// What a menu bar's arrows do everywhere: the first item is selected, and beside the submenus they
// go on to the neighbouring popups, around the ends.
TEST_F(Screen, KeysGoFromPopupToPopupWhichCloseWhenTheWindowIsResized) {
    QStringList selected;
    UseNextMenu([&selected](QMenu*) {
        for (int key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Left}) {
            auto* popup = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_NE(popup, nullptr);
            selected << popup->activeAction()->text();
            SendKey(popup, key);
        }
        Host().resize(300, 400);
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    });
    Press({Qt::Key_F10, Qt::Key_Down});
    EXPECT_EQ(selected,
              (QStringList{"Puzzles", "Small", "Puzzles", "Available", "Current Letter"}));
}

TEST_F(Screen, BoxAnswersYesOnlyWhenItIsMeant) {
    const std::u16string text = u"A question that is too long for one line, with two\nparts?";
    constexpr Qt::Key enter = Qt::Key_Return;
    const std::tuple<std::vector<Qt::Key>, UINT, int> cases[] = {
        {{enter}, 0, IDYES},
        {{Qt::Key_Right, enter}, 0, IDNO},
        {{Qt::Key_Left, enter}, MB_DEFBUTTON2, IDYES},
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
        EXPECT_EQ(MessageBoxW(MainWindow, text.c_str(), u"Question", MB_YESNO | style), expected)
            << keys[0];
        EXPECT_EQ(TakeShownMessages(), (std::vector<ShownMessage>{{text, u"Question"}}));
    }
}

TEST_F(Screen, ARingGrowsAroundAHeldStylus) {
    handheld->Resize(3);
    QRect place;
    QTimer::singleShot(300, [&place] {
        auto* cue = Host().findChild<HoldCue*>();
        place = cue->geometry();
        EXPECT_EQ(cue->grab().toImage().pixel(48, 48 - 13 * 3), 0xFF2F6DB5);
    });
    handheld->PutDown({100, 70});
    handheld->Settle();
    handheld->LiftAt({100, 70});
    EXPECT_EQ(place, QRectF(301.5 - 48.6, 289.5 - 48.6, 97.2, 97.2).toRect());
}

// On the way that taps take from the host; the time is in milliseconds. Before some a box is opened
// and closed, and the eyes have that many milliseconds to see what is there now.
TEST_F(Screen, QuickTapsCountOnTheSameGroundOnly) {
    const QScopedValueRollback<int> usualBlink{blinkMilliseconds};
    Play(BoardRows(12, std::string(12, 'A')), smallSize);
    constexpr int never = 3'600'000;
    constexpr int noBox = -1;
    const POINT first{30, 30};
    const POINT beside{34, 27};
    const POINT away{60, 100};
    for (const auto& [blink, point, time, counts] : {std::tuple(0, first, 1000, true),
                                                     {noBox, first, 1060, true},
                                                     {noBox, away, 1180, true},
                                                     {noBox, first, 1200, true},
                                                     {0, beside, 1690, false},
                                                     {noBox, first, 2150, false},
                                                     {noBox, first, 2700, true},
                                                     {never, away, 2800, false},
                                                     {0, away, 5000, true}}) {
        if (blink != noBox) {
            blinkMilliseconds = blink;
            MessageBoxW(MainWindow, u"Text", u"Title", MB_OK);
            TakeShownMessages();
            QThread::msleep(2);
        }
        const auto before = std::tuple(CursorRow, CursorCol, Direction);
        const RECT pixel{point.x, point.y, point.x + 1, point.y + 1};
        const QPointF place = ExactPlace(OnScreen(MainWindow, pixel)).center();
        for (QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, place, Host().mapToGlobal(place), Qt::LeftButton,
                              Qt::LeftButton, Qt::NoModifier);
            event.setTimestamp(quint64(time) + 1000000);
            QCoreApplication::sendEvent(Host().windowHandle(), &event);
        }
        handheld->Settle();
        EXPECT_EQ(before != std::tuple(CursorRow, CursorCol, Direction), counts) << time;
    }
}

}  // namespace
