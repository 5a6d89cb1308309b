#include "platform/qt/input/stylus.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QEventLoop>
#include <QtCore/QTimer>
#include <cstdlib>

#include "platform/qt/common/message_queue.h"
#include "platform/qt/common/screen_geometry.h"
#include "platform/qt/input/hold_cue.h"

namespace {

constexpr int holdMilliseconds = 600;
// A hand is never quite still; more than this is the start of a drag, and less is not told, so that
// the board does not tremble along. Logical pixels.
constexpr int holdTolerance = 4;

struct Stylus {
    bool down = false;
    bool moved = false;  // beyond the tolerance since the press
    bool swallowRelease = false;
    POINT pressed;
    QElapsedTimer sincePress;
    QEventLoop* watch = nullptr;  // runs while a gesture is being recognised
};

Stylus stylus;

void EndWatch() {
    if (stylus.watch != nullptr) {
        stylus.watch->quit();
    }
}

void Queue(HWND window, UINT message, POINT point, bool heldAtOnce = false) {
    constexpr WPARAM leftButton = 1;
    const WPARAM buttons = message == WM_LBUTTONUP ? 0 : leftButton;
    PostMessage({{window, message, buttons, MAKELPARAM(point.x, point.y)}, false, heldAtOnce});
}

bool Beyond(POINT one, POINT other) {
    return std::abs(one.x - other.x) > holdTolerance || std::abs(one.y - other.y) > holdTolerance;
}

}  // namespace

void StylusPressed(HWND window, POINT point, bool heldAtOnce) {
    if (!heldAtOnce) {
        stylus.down = true;
        stylus.moved = false;
        stylus.swallowRelease = false;
        stylus.pressed = point;
        stylus.sincePress.start();
    }
    Queue(window, WM_LBUTTONDOWN, point, heldAtOnce);
}

void StylusMoved(HWND window, POINT point) {
    if (!stylus.down || stylus.swallowRelease) {
        return;
    }
    if (stylus.moved || Beyond(point, stylus.pressed)) {
        stylus.moved = true;
        Queue(window, WM_MOUSEMOVE, point);
        EndWatch();
    }
}

void StylusReleased(HWND window, POINT point) {
    if (!stylus.down) {
        return;
    }
    stylus.down = false;
    if (!stylus.swallowRelease) {
        Queue(window, WM_LBUTTONUP, point);
    }
    stylus.swallowRelease = false;
    EndWatch();
}

namespace {

// Returns when the stylus has been held long enough, has moved away or was lifted.
void WatchStylus(QWidget* screen, QPointF point, int milliseconds) {
    QEventLoop watch;
    stylus.watch = &watch;
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, &watch, &QEventLoop::quit);
    const HoldCue cue(screen, point, ScreenMagnification(), milliseconds);
    watch.exec();
    stylus.watch = nullptr;
}

}  // namespace

bool AwaitHold(QWidget* screen, QPointF point) {
    const auto left = static_cast<int>(holdMilliseconds - stylus.sincePress.elapsed());
    if (stylus.down && !stylus.moved && left > 0) {
        WatchStylus(screen, point, left);
    }
    stylus.swallowRelease = stylus.down && !stylus.moved;
    return stylus.swallowRelease;
}
