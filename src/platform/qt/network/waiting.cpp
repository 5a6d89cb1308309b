#include "platform/qt/network/waiting.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtCore/QTimer>

#include "platform/errors.h"
#include "platform/qt/network/busy_sign.h"
#include "platform/qt/network/module/transfer.h"
#include "platform/qt/window/end_request.h"

namespace {

bool IsInput(const QEvent& event) {
    switch (event.type()) {
        // What a button under the pointer looks like is none.
        case QEvent::Enter:
        case QEvent::HoverEnter:
        case QEvent::HoverMove:
        case QEvent::HoverLeave: return false;
        case QEvent::Shortcut:
        case QEvent::InputMethod:
        case QEvent::DragEnter:
        case QEvent::Drop: return true;
        default: return event.isInputEvent();
    }
}

bool IsEscape(const QEvent& event) {
    return event.type() == QEvent::KeyPress &&
           static_cast<const QKeyEvent&>(event).key() == Qt::Key_Escape;
}

// The host's window has it before any widget does.
bool IsTapOn(const QWidget& widget, const QEvent& event) {
    if (event.type() != QEvent::MouseButtonRelease && event.type() != QEvent::TouchEnd) {
        return false;
    }
    const QPointF place =
        static_cast<const QPointerEvent&>(event).points().constFirst().globalPosition();
    return widget.isVisible() && widget.rect().contains(widget.mapFromGlobal(place).toPoint());
}

// What the toolkit would only hold back reaches the program afterwards, when the player has long
// given up tapping; so it is dropped. Escape and a tap on the sign end the wait.
class InputDropper : public QObject {
public:
    explicit InputDropper(const BusySign& shown) : sign(shown) {
        QCoreApplication::instance()->installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* event) override {
        stopAsked = stopAsked || IsTapOn(sign, *event) || IsEscape(*event);
        return IsInput(*event);
    }
    bool StopAsked() const {
        return stopAsked;
    }

private:
    const BusySign& sign;
    bool stopAsked = false;
};

class ShownSign {
public:
    explicit ShownSign(BusySign& shown) : sign(shown) {
        sign.Begin();
    }
    ~ShownSign() {
        sign.End();
    }
    ShownSign(const ShownSign&) = delete;
    ShownSign& operator=(const ShownSign&) = delete;

private:
    BusySign& sign;
};

// Wakes the event loop up, too, when its time is over.
class Silence {
public:
    explicit Silence(const Transfer& watched) : transfer(watched) {
        timer.setSingleShot(true);
        timer.start(longestSilence);
    }
    bool TooLong() {
        if (heard != transfer.SignsOfLife()) {
            heard = transfer.SignsOfLife();
            timer.start(longestSilence);
        }
        return !timer.isActive();
    }

private:
    const Transfer& transfer;
    QTimer timer;
    int heard = 0;
};

DWORD ReasonToStop(const InputDropper& dropper) {
    return EndingAsked() || dropper.StopAsked() ? ERROR_INTERNET_OPERATION_CANCELLED : 0;
}

}  // namespace

DWORD AwaitTransfer(const Transfer& transfer, BusySign& sign,
                    const std::function<bool()>& condition) {
    const InputDropper dropper(sign);
    const ShownSign shown(sign);
    Silence silence(transfer);
    while (!transfer.Ended() && !condition() && ReasonToStop(dropper) == 0) {
        if (silence.TooLong()) {
            return ERROR_INTERNET_TIMEOUT;
        }
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
        sign.SetAmount(transfer.Received());
    }
    return ReasonToStop(dropper);
}
