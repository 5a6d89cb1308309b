#include "platform/qt/window/timers.h"

#include <QtCore/QBasicTimer>
#include <QtCore/QTimerEvent>
#include <algorithm>
#include <map>
#include <utility>

#include "platform/qt/window/window.h"

namespace {

// One object for all timers: none has to outlive the message in which it is killed.
class Timers : public QObject {
public:
    using Key = std::pair<HWND, WPARAM>;

    void Start(const Key& key, UINT milliseconds) {
        running[key].start(static_cast<int>(milliseconds), Qt::PreciseTimer, this);
    }
    bool Stop(const Key& key) {
        return running.erase(key) != 0;
    }
    void StopAllOf(HWND window) {
        std::erase_if(running, [window](const auto& timer) { return timer.first.first == window; });
    }

protected:
    void timerEvent(QTimerEvent* event) override {
        const auto due = std::find_if(running.begin(), running.end(), [event](const auto& timer) {
            return timer.second.timerId() == event->timerId();
        });
        if (due != running.end()) {
            const auto [window, id] = due->first;
            SendMessageW(window, WM_TIMER, id, 0);
        }
    }

private:
    std::map<Key, QBasicTimer> running;
};

Timers timers;

}  // namespace

WPARAM SetTimer(HWND window, WPARAM id, UINT milliseconds, void*) {
    if (!IsLiveWindow(window)) {
        return 0;
    }
    timers.Start({window, id}, milliseconds);
    return id;
}

BOOL KillTimer(HWND window, WPARAM id) {
    return timers.Stop({window, id});
}

void StopTimersOf(HWND window) {
    timers.StopAllOf(window);
}
