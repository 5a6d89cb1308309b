// The screen around the program's window: its furniture - title bar, menu bar and soft input
// panel - beside a second, slow drawing of it, popups, boxes, windows and the guard against taps
// that were meant for something else.
#include <QtCore/QScopedValueRollback>
#include <QtCore/QThread>
#include <QtCore/QTimer>
#include <QtGui/QHelpEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QWindow>
#include <QtWidgets/QMenu>
#include <QtWidgets/QToolTip>
#include <cmath>

#include "platform/qt/common/screen_geometry.h"
#include "platform/qt/host/host_window.h"
#include "platform/qt/input/hold_cue.h"
#include "platform/qt/input/tap_guard.h"
#include "platform/qt/look/svg.h"
#include "platform/qt/screen/bar_button.h"
#include "platform/qt/window/window.h"
#include "support/menus.h"
#include "support/played_board.h"

namespace {

struct PanelKey {
    QString plain;
    QString shifted;
    int code;
    QRectF place;
};

// First the two Shift keys, then those that type nothing, then Space.
std::vector<PanelKey> PanelKeys() {
    std::vector<PanelKey> keys = {{"Shift", "Shift", Qt::Key_Shift, {0, 48, 30, 16}},
                                  {"Shift", "Shift", Qt::Key_Shift, {210, 48, 30, 16}},
                                  {"\u2190", "\u2190", Qt::Key_Backspace, {216, 0, 24, 16}},
                                  {"\u21B5", "\u21B5", Qt::Key_Return, {216, 32, 24, 16}},
                                  {"\u25C0", "\u25C0", Qt::Key_Left, {168, 64, 18, 16}},
                                  {"\u25B2", "\u25B2", Qt::Key_Up, {186, 64, 18, 16}},
                                  {"\u25BC", "\u25BC", Qt::Key_Down, {204, 64, 18, 16}},
                                  {"\u25B6", "\u25B6", Qt::Key_Right, {222, 64, 18, 16}},
                                  {" ", " ", Qt::Key_Space, {48, 64, 120, 16}}};
    const char* const rows[] = {"1!2@3#4$5%6^7&8*9(0)-_=+", "qQwWeErRtTyYuUiIoOpP[{]}",
                                "aAsSdDfFgGhHjJkKlL;:'\"", "zZxXcCvVbBnNmM,<.>/?", "`~\\|"};
    for (int row = 0; row < 5; ++row) {
        QRectF place(std::array{0, 12, 18, 30, 12}[std::size_t(row)], row * 16, 18, 16);
        for (const char* each = rows[row]; *each != 0; each += 2) {
            keys.push_back({QChar(each[0]), QChar(each[1]), std::toupper(each[0]), place});
            place.translate(18, 0);
        }
    }
    return keys;
}

// What differs from one moment to another: the button and the key by their places.
struct Moment {
    int focusedButton = -1;
    bool panelUp = false;
    bool shift = false;
    int pressedKey = -1;
};

class PlainScreen {
public:
    QImage Paint(const Moment& moment, const QImage& client) {
        image.fill(0x1B2229);
        painter.translate(std::floor((image.width() - 240 * scale) / 2),
                          std::floor((image.height() - 320 * scale) / 2));
        painter.drawImage(0, At(26), client);
        painter.fillRect(Area(0, 0, 240, 26), QColor(blue));
        Write(Area(0, 0, 240, 26).translated(int(8 * scale), 0), Qt::AlignVCenter, "Quadrel", 13,
              true, 0xFFFFFF);
        PaintBar(moment);
        painter.translate(0, At(214));
        PaintPanel(moment);
        painter.end();
        return image;
    }

private:
    int At(double logical) const {
        return qRound(logical * scale);
    }
    QRect Area(int left, int top, int right, int bottom) const {
        return QRect(QPoint(At(left), At(top)), QPoint(At(right) - 1, At(bottom) - 1));
    }
    void Write(const QRect& box, int place, const QString& text, int em, bool bold, QRgb color) {
        QFont font({"Liberation Sans", "DejaVu Sans"}, -1, bold ? QFont::Bold : QFont::Normal);
        font.setPixelSize(At(em));
        painter.setFont(font);
        painter.setPen(QColor(color));
        painter.drawText(box, place, text);
    }
    void PaintBar(const Moment& moment) {
        painter.fillRect(Area(0, 294, 240, 320), QColor(0xE9ECEF));
        painter.fillRect(0, At(294), At(240), std::max(1, int(scale)), QColor(0xA9B2BA));
        int left = 0;
        for (const QString picture : {"main", "check", "hint", "open", "clues", "size", "direction",
                                      "keyboard", "about", "sip"}) {
            QRect button = Area(left, 294, left + 24, 320);
            if (picture == "sip") {
                button.setLeft(At(240) - At(24));
                painter.fillRect(moment.panelUp ? button : QRect(), QColor(lit));
            }
            if (left == moment.focusedButton * 24) {
                const int width = std::max(1, At(1));
                painter.setPen(
                    QPen(QColor(blue), width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
                painter.drawRect(QRectF(button).adjusted(width, width, -width, -width));
            }
            const QSize free = button.size() - QSize(At(16), At(16));
            painter.drawImage(button.topLeft() + QPoint(free.width() / 2, free.height() / 2),
                              RenderSvg(":/art/menu_" + picture + ".svg", {At(16), At(16)}));
            left += 24;
        }
    }
    void PaintPanel(const Moment& moment) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillRect(moment.panelUp ? Area(0, 0, 240, 80) : QRect(), QColor(0xC6CDD4));
        int index = 0;
        for (const PanelKey& key : moment.panelUp ? PanelKeys() : std::vector<PanelKey>()) {
            const QRectF space = key.place.adjusted(0.75, 0.75, -0.75, -0.75);
            const QRect cap = QRectF(space.topLeft() * scale, space.size() * scale).toRect();
            const bool isLit = index == moment.pressedKey || (moment.shift && index < 2);
            painter.setPen(Qt::NoPen);
            painter.setBrush(QColor(isLit ? lit : index < 9 ? 0xE3E8EC : 0xFFFFFF));
            painter.drawRoundedRect(cap, 2 * scale, 2 * scale);
            Write(cap, Qt::AlignCenter, moment.shift ? key.shifted : key.plain, index < 2 ? 8 : 10,
                  false, 0x22303C);
            ++index;
        }
    }

    static constexpr QRgb blue = 0x2F6DB5;
    static constexpr QRgb lit = 0xC3D6EC;
    QImage image{Host().size(), QImage::Format_RGB32};
    const double scale = std::min(image.width() / 240.0, image.height() / 320.0);
    QPainter painter{&image};
};

// Takes what is typed from the program, and looks at the screen meanwhile.
struct TypedKeys : QObject {
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::KeyPress) {
            return false;
        }
        look();
        const auto* key = static_cast<QKeyEvent*>(event);
        keys.emplace_back(key->key(), key->text().toStdString(), key->modifiers().toInt());
        return true;
    }

    std::function<void()> look;
    std::vector<std::tuple<int, std::string, int>> keys;
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
    void ExpectLook(const Moment& moment) {
        const QImage screen = handheld->Screen().convertToFormat(QImage::Format_RGB32);
        EXPECT_EQ(screen, PlainScreen().Paint(moment, handheld->Client()));
    }
    void Press(std::initializer_list<int> keys) {
        for (int key : keys) {
            PressFocusedKey(*handheld, key);
        }
    }
};

// Every key is tapped at one of the sizes, without Shift and with it.
TEST_F(Screen, LooksPlainAndThePanelTypesWhatItsKeysShow) {
    const std::vector<PanelKey> keys = PanelKeys();
    int first = 0;
    for (const QSize& window : {QSize(240, 320), QSize(329, 440), QSize(480, 700)}) {
        Host().resize(window);
        handheld->Settle();
        Moment moment;
        ExpectLook(moment);
        handheld->PressPanelButton();
        moment.panelUp = true;
        TypedKeys typed;
        typed.look = [&] { ExpectLook(moment); };
        MainWindow->widget->installEventFilter(&typed);
        const auto tap = [&](int index) {
            const PanelKey& key = keys[std::size_t(index)];
            const QString text = index < 8 ? "" : moment.shift ? key.shifted : key.plain;
            const std::tuple sent(key.code, text.toStdString(), moment.shift ? 0x02000000 : 0);
            moment.pressedKey = index;
            handheld->TapPanel(key.place.center().x(), key.place.center().y());
            EXPECT_EQ(std::exchange(typed.keys, {}), decltype(typed.keys)(index < 2 ? 0 : 1, sent));
            moment.pressedKey = -1;
            moment.shift = index < 2 && !moment.shift;
            ExpectLook(moment);
        };
        for (int index = first++; index < int(keys.size()); index += 3) {
            tap(index);
            tap(index % 2);  // Shift
            tap(index);
        }
        MainWindow->widget->removeEventFilter(&typed);
        handheld->PressPanelButton();
    }
}

TEST_F(Screen, TipsStandAboveTheirButtons) {
    handheld->Resize(2);
    for (auto* button : Host().findChildren<BarButton*>()) {
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
}

// Faults: keys that are not the bar's are lost, or leave the focus there.
TEST_F(Screen, KeysGoAroundTheButtonsThatCanBePressedAndOthersAreTheGames) {
    for (const auto& [opening, step, closing] :
         {std::tuple(Qt::Key_F10, 1, Qt::Key_F10), {Qt::Key_Alt, 9, Qt::Key_Escape}}) {
        Press({opening});
        for (int index = 0; index <= step * 10; index += step) {
            ExpectLook({.focusedButton = index % 10});
            Press({step == 1 ? Qt::Key_Right : Qt::Key_Left});
        }
        Press({closing});
        ExpectLook({});
    }
    Press({Qt::Key_F10, Qt::Key_K, Qt::Key_F10, Qt::Key_Left, Qt::Key_Left, Qt::Key_Left,
           Qt::Key_Left, Qt::Key_Return});
    EXPECT_EQ(std::pair(PlayerLetters()[0], Direction), std::pair('K', 1));
    ExpectLook({});
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

TEST_F(Screen, WindowsAreToldWhatChangesAndCalledForward) {
    static std::vector<std::pair<UINT, WPARAM>> told;
    WNDCLASSW example;
    example.lpszClassName = u"Example";
    example.lpfnWndProc = [](HWND, UINT message, WPARAM wParam, LPARAM) -> LRESULT {
        told.emplace_back(message, wParam);
        return 0;
    };
    RegisterClassW(&example);
    HWND window = CreateWindowExW(0, u"Example", u"A window", WS_VISIBLE, CW_USEDEFAULT,
                                  CW_USEDEFAULT, 99, 50, nullptr, nullptr, nullptr, nullptr);
    UpdateWindow(window);
    QWidget other;
    other.show();
    other.activateWindow();
    handheld->Settle();
    EXPECT_FALSE(Host().isActiveWindow());
    EXPECT_EQ(FindWindowW(u"Example", u"A window"), window);
    SetForegroundWindow(reinterpret_cast<HWND>(reinterpret_cast<std::uintptr_t>(window) | 1));
    handheld->Settle();
    EXPECT_TRUE(Host().isActiveWindow());
    DestroyWindow(window);
    EXPECT_EQ(told, (decltype(told){
                        {WM_CREATE, 0}, {WM_ACTIVATE, WA_ACTIVE}, {WM_PAINT, 0}, {WM_DESTROY, 0}}));
}

TEST_F(Screen, ARingGrowsAroundAHeldStylus) {
    handheld->Resize(3);
    QRect place;
    QTimer::singleShot(300, [&place] {
        auto* cue = Host().findChild<HoldCue*>();
        place = cue->geometry();
        EXPECT_EQ(cue->grab().toImage().pixel(48, 48 - 13 * 3), 0xFF2F6DB5);
    });
    handheld->Hold(100, 70);
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
