#include "support/handheld.h"

#include <gtest/gtest.h>

#include <QtCore/QCoreApplication>
#include <QtGui/QInputMethodEvent>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QAbstractButton>

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
#include "resources/ids.h"

namespace {

ClientView* MainView() {
    return qobject_cast<ClientView*>(MainWindow->widget.data());
}

void SendMouse(QWidget* widget, QEvent::Type type, QPointF place, Qt::MouseButton button) {
    const bool lifted = type == QEvent::MouseButtonRelease;
    QMouseEvent event(type, place, widget->mapToGlobal(place), button,
                      lifted ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

void SendMouse(QEvent::Type type, POINT client, Qt::MouseButton button = Qt::LeftButton) {
    // The middle of the logical pixel, so that rounding cannot move it.
    const QPointF place = QPointF(client.x + 0.5, client.y + 0.5) * ScreenMagnification();
    SendMouse(MainView(), type, place, button);
}

POINT MiddleOfCell(int row, int col) {
    return {BoardLeft - ScrollX + col * CellSize + CellSize / 2,
            row * CellSize - ScrollY + CellSize / 2};
}

// What a keyboard sends along with a key: its letter, or with Ctrl its control character.
QString TextOfKey(int key, Qt::KeyboardModifiers modifiers) {
    const int letter = modifiers.testFlag(Qt::ControlModifier) ? key & 0x1F : key;
    return key < 0x80 ? QString(QChar(letter)).toLower() : QString();
}

}  // namespace

Handheld::Handheld(const TemporaryHome&, double magnification) {
    Host().SetPanelUp(false);
    Resize(magnification);
    InitInstance(&programResources, SW_SHOW);
    Settle();
}

Handheld::~Handheld() {
    Close();
}

bool Handheld::Running() const {
    return IsLiveWindow(MainWindow);
}

void Handheld::Close() {
    if (Running()) {
        Host().close();
        Settle();
    }
    // The next run begins in this process, where nothing of this one may be left.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void Handheld::Settle() {
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

void Handheld::PutDown(POINT point) {
    SendMouse(QEvent::MouseButtonPress, point);
}

void Handheld::MoveTo(POINT point) {
    SendMouse(QEvent::MouseMove, point, Qt::NoButton);
    Settle();
}

void Handheld::LiftAt(POINT point) {
    SendMouse(QEvent::MouseButtonRelease, point);
    Settle();
}

void Handheld::Tap(int x, int y) {
    PutDown({x, y});
    LiftAt({x, y});
}

void Handheld::TapCell(int row, int col) {
    const POINT middle = MiddleOfCell(row, col);
    Tap(middle.x, middle.y);
}

void Handheld::DoubleTapCell(int row, int col) {
    TapCell(row, col);
    SendMouse(QEvent::MouseButtonDblClick, MiddleOfCell(row, col));
    LiftAt(MiddleOfCell(row, col));
}

void Handheld::Hold(int x, int y) {
    PutDown({x, y});
    Settle();
    LiftAt({x, y});
}

void Handheld::RightClick(int x, int y) {
    SendMouse(QEvent::MouseButtonPress, {x, y}, Qt::RightButton);
    SendMouse(QEvent::MouseButtonRelease, {x, y}, Qt::RightButton);
    Settle();
}

void Handheld::Drag(POINT from, POINT to) {
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

void Handheld::Press(int key, Qt::KeyboardModifiers modifiers) {
    QKeyEvent press(QEvent::KeyPress, key, modifiers, TextOfKey(key, modifiers));
    QCoreApplication::sendEvent(MainView(), &press);
    Settle();
}

void Handheld::Type(const std::string& text) {
    for (char character : text) {
        Press(character);
    }
}

void Handheld::Commit(const QString& text) {
    QInputMethodEvent event;
    event.setCommitString(text);
    QCoreApplication::sendEvent(MainView(), &event);
    Settle();
}

bool Handheld::PressButton(const QString& tooltip) {
    for (auto* button : Host().findChildren<QAbstractButton*>()) {
        if (button->toolTip() == tooltip && button->isEnabled()) {
            button->click();
            Settle();
            return true;
        }
    }
    return false;
}

void Handheld::PressPanelButton() {
    EXPECT_TRUE(PressButton("Keyboard"));
}

void Handheld::TapPanel(double x, double y) {
    auto* panel = Host().findChild<SoftInputPanel*>();
    const QPointF place = QPointF(x, y) * ScreenMagnification();
    DragOver(panel, place, place);
    Settle();
}

void Handheld::Resize(double magnification) {
    Host().resize(qRound(screenWidth * magnification), qRound(screenHeight * magnification));
    Settle();
}

QImage Handheld::Screen() {
    return Host().grab().toImage();
}

COLORREF Handheld::Pixel(int x, int y) {
    return ColorAt(Client(), x, y);
}

QImage Handheld::Client() {
    return MainWindow->surface->Image().copy();
}

void DragOver(QWidget* widget, QPointF from, QPointF to) {
    SendMouse(widget, QEvent::MouseButtonPress, from, Qt::LeftButton);
    SendMouse(widget, QEvent::MouseButtonRelease, to, Qt::LeftButton);
}


// For messages of failed comparisons.
void PrintTo(const QImage& image, std::ostream* out) {
    *out << "a picture of " << image.width() << " by " << image.height();
}

COLORREF ColorAt(const QImage& image, int x, int y) {
    const QRgb color = image.pixel(x, y);
    return RGB(qRed(color), qGreen(color), qBlue(color));
}
