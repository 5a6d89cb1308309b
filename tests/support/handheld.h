// The whole program on its handheld, driven as a person does: stylus, keys, buttons, eyes.
#pragma once

#include <gtest/gtest.h>

#include <QtWidgets/QtWidgets>

#include "app/view.h"
#include "app/win_main.h"
#include "platform/qt/common/message_queue.h"
#include "platform/qt/common/screen_geometry.h"
#include "platform/qt/common/screen_layout.h"
#include "platform/qt/host/client_view.h"
#include "platform/qt/host/host_window.h"
#include "platform/qt/screen/soft_input_panel.h"
#include "platform/qt/surface/drawing_context.h"
#include "platform/qt/window/window.h"
#include "platform/types.h"
#include "resources/ids.h"
#include "support/temporary_home.h"

inline ClientView* MainView() {
    return qobject_cast<ClientView*>(MainWindow->widget.data());
}

inline void SendMouse(QWidget* widget, QEvent::Type type, QPointF place, Qt::MouseButton button) {
    const bool lifted = type == QEvent::MouseButtonRelease;
    QMouseEvent event(type, place, widget->mapToGlobal(place), button,
                      lifted ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

inline void SendMouse(QEvent::Type type, POINT client, Qt::MouseButton button = Qt::LeftButton) {
    // The middle of the logical pixel, so that rounding cannot move it.
    const QPointF place = QPointF(client.x + 0.5, client.y + 0.5) * ScreenMagnification();
    SendMouse(MainView(), type, place, button);
}

// The stylus touches one place of the widget and is lifted at another.
inline void DragOver(QWidget* widget, QPointF from, QPointF to) {
    SendMouse(widget, QEvent::MouseButtonPress, from, Qt::LeftButton);
    SendMouse(widget, QEvent::MouseButtonRelease, to, Qt::LeftButton);
}

// For messages of failed comparisons.
inline void PrintTo(const QImage& image, std::ostream* out) {
    *out << "a picture of " << image.width() << " by " << image.height();
}

inline COLORREF ColorAt(const QImage& image, int x, int y) {
    const QRgb color = image.pixel(x, y);
    return RGB(qRed(color), qGreen(color), qBlue(color));
}

class Handheld {
public:
    // Starts the program with the screen at this magnification; its files are in the home.
    explicit Handheld(const TemporaryHome&, double magnification = 1) {
        Host().SetPanelUp(false);
        // The tests' screen is a small one.
        Host().setWindowState(Qt::WindowNoState);
        Resize(magnification);
        InitInstance(&programResources, SW_SHOW);
        Settle();
    }

    // Ends the program as closing its window does.
    ~Handheld() {
        Close();
    }

    Q_DISABLE_COPY(Handheld)

    bool Running() const {
        return IsLiveWindow(MainWindow);
    }

    void Close() {
        if (Running()) {
            Host().close();
            Settle();
        }
        // The next run begins in this process, where nothing of this one may be left.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    // Points are logical pixels of the main window's client area.
    void Tap(int x, int y) {
        PutDown({x, y});
        LiftAt({x, y});
    }

    void TapCell(int row, int col) {
        Tap(BoardLeft - ScrollX + col * CellSize + CellSize / 2,
            row * CellSize - ScrollY + CellSize / 2);
    }

    void RightClick(int x, int y) {
        SendMouse(QEvent::MouseButtonPress, {x, y}, Qt::RightButton);
        SendMouse(QEvent::MouseButtonRelease, {x, y}, Qt::RightButton);
        Settle();
    }

    void Drag(POINT from, POINT to) {
        constexpr int steps = 10;
        PutDown(from);
        for (int step = 1; step <= steps; ++step) {
            SendMouse(
                QEvent::MouseMove,
                {from.x + (to.x - from.x) * step / steps, from.y + (to.y - from.y) * step / steps},
                Qt::NoButton);
        }
        LiftAt(to);
    }

    // The stylus in single steps. Putting it down takes effect with the step after it; the first
    // move of a drag is longer than a hand trembles, else the step waits for a tap-and-hold.
    void PutDown(POINT point) {
        SendMouse(QEvent::MouseButtonPress, point);
    }

    void MoveTo(POINT point) {
        SendMouse(QEvent::MouseMove, point, Qt::NoButton);
        Settle();
    }

    void LiftAt(POINT point) {
        SendMouse(QEvent::MouseButtonRelease, point);
        Settle();
    }

    // A key of the host's keyboard, by the toolkit's number; letters and digits by their character.
    // With Ctrl the text that is sent along is a control character.
    void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        const int letter = modifiers.testFlag(Qt::ControlModifier) ? key & 0x1F : key;
        const QString text = key < 0x80 ? QString(QChar(letter)).toLower() : QString();
        QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
        QCoreApplication::sendEvent(MainView(), &press);
        Settle();
    }

    void Type(const std::string& text) {
        for (char character : text) {
            Press(character);
        }
    }

    void Commit(const QString& text) {
        QInputMethodEvent event;
        event.setCommitString(text);
        QCoreApplication::sendEvent(MainView(), &event);
        Settle();
    }

    // Presses the menu bar's button with that tooltip; false when there is none or it is disabled.
    bool PressButton(const QString& tooltip) {
        for (auto* button : Host().findChildren<QAbstractButton*>()) {
            if (button->toolTip() == tooltip && button->isEnabled()) {
                button->click();
                Settle();
                return true;
            }
        }
        return false;
    }

    // Raises or lowers the soft input panel by its button.
    void PressPanelButton() {
        EXPECT_TRUE(PressButton("Keyboard"));
    }

    // Taps the soft input panel, in its own logical pixels.
    void TapPanel(double x, double y) {
        auto* panel = Host().findChild<SoftInputPanel*>();
        const QPointF place = QPointF(x, y) * ScreenMagnification();
        DragOver(panel, place, place);
        Settle();
    }

    void Resize(double magnification) {
        Host().resize(qRound(screenWidth * magnification), qRound(screenHeight * magnification));
        Settle();
    }

    // Handles all input and messages that wait.
    void Settle() {
        HACCEL accelerators = LoadAcceleratorsW(&programResources, acceleratorTable);
        do {
            QCoreApplication::processEvents();
            while (MessagesWaiting()) {
                MSG message;
                GetMessageW(&message, nullptr, 0, 0);
                if (!TranslateAcceleratorW(message.hwnd, accelerators, &message)) {
                    DispatchMessageW(&message);
                }
            }
            QCoreApplication::processEvents();
        } while (MessagesWaiting());
    }

    // The screen as the host shows it.
    QImage Screen() {
        return Host().grab().toImage();
    }

    // The main window's client area, in device pixels.
    QImage Client() {
        return MainWindow->surface->Image().copy();
    }
};
