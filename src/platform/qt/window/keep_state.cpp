#include "platform/qt/window/keep_state.h"

#include <QtCore/QTimer>
#include <utility>

#include "platform/qt/window/window.h"

namespace {

bool waiting = false;

}  // namespace

void KeepStateSoon() {
    if (!std::exchange(waiting, true)) {
        QTimer::singleShot(timeUntilKept, [] {
            waiting = false;
            KeepStateNow();
        });
    }
}

void KeepStateNow() {
    if (HWND window = BottomWindow();
        window != nullptr && SendMessageW(window, WM_KEEPSTATE, 0, 0) != 0) {
        KeepStateSoon();
    }
}
