#include "platform/qt/input/tap_guard.h"

#include <QtCore/QElapsedTimer>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QApplication>

#include "platform/qt/common/screen_geometry.h"

namespace {

// A child's double tap is slower than what the toolkit takes for a double click.
constexpr quint64 pairMilliseconds = 500;
// How far apart a finger sets the two taps of a pair. Logical pixels.
constexpr double pairDistance = 12;

struct Ground {
    bool changed = false;  // since the last press that was let through
    QElapsedTimer sinceChange;
};

Ground ground;

class TapGuard : public QObject {
public:
    using QObject::QObject;

    // Seen on the way to the host's window, each press comes by once, and before any popup.
    bool eventFilter(QObject* receiver, QEvent* event) override {
        if (!receiver->isWindowType()) {
            return false;
        }
        switch (event->type()) {
            case QEvent::MouseButtonPress:
            case QEvent::MouseButtonDblClick:
                dropping = DropsPress(*static_cast<QMouseEvent*>(event));
                return dropping;
            case QEvent::MouseMove:
            case QEvent::MouseButtonRelease: return dropping;
            default: return false;
        }
    }

private:
    bool DropsPress(const QMouseEvent& press) {
        const bool repeated = last.time != 0 && IsPair(press);
        last = {press.timestamp(), press.globalPosition()};
        if (ground.changed && (repeated || !ground.sinceChange.hasExpired(blinkMilliseconds))) {
            return true;
        }
        ground.changed = false;
        return false;
    }

    bool IsPair(const QMouseEvent& press) const {
        const QPointF way = press.globalPosition() - last.place;
        return press.timestamp() - last.time <= pairMilliseconds &&
               way.manhattanLength() <= pairDistance * ScreenMagnification();
    }

    struct {
        quint64 time = 0;  // milliseconds of the host's clock
        QPointF place;
    } last;
    bool dropping = false;
};

}  // namespace

void GuardTaps() {
    qApp->installEventFilter(new TapGuard(qApp));
}

void GroundChanged() {
    ground.changed = true;
    ground.sinceChange.start();
}
