// The message queue, the loop, accelerators and timers.
//
// Supported: what windows.h lists. Left out: message filters, thread messages, timers with a
// procedure, WM_CHAR (letters arrive as virtual keys).
#include <QtCore/QBasicTimer>
#include <QtCore/QCoreApplication>
#include <QtCore/QThread>
#include <QtCore/QTimerEvent>
#include <algorithm>
#include <deque>
#include <map>

#include "platform/qt/common/message_queue.h"
#include "platform/qt/window/host_window.h"
#include "platform/qt/window/window.h"
#include "platform/resources.h"

namespace {

std::deque<QueuedMessage> queue;
QueuedMessage current;
int procedureDepth = 0;

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

LRESULT Call(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    ++procedureDepth;
    const LRESULT answer = window->procedure(window, message, wParam, lParam);
    --procedureDepth;
    return answer;
}

bool IsKey(UINT message) {
    return message == WM_KEYDOWN || message == WM_SYSKEYDOWN;
}

bool IsInput(UINT message) {
    constexpr UINT firstOfStylus = WM_MOUSEMOVE;
    constexpr UINT lastOfStylus = WM_LBUTTONUP;
    return IsKey(message) || message == WM_COMMAND ||
           (message >= firstOfStylus && message <= lastOfStylus);
}

}  // namespace

void PostMessage(const QueuedMessage& message) {
    queue.push_back(message);
}

bool MessagesWaiting() {
    return !queue.empty();
}

const QueuedMessage& CurrentMessage() {
    return current;
}

bool InsideProcedure() {
    return procedureDepth > 0;
}

void DropMessagesOf(HWND window) {
    std::erase_if(queue,
                  [window](const QueuedMessage& queued) { return queued.message.hwnd == window; });
    timers.StopAllOf(window);
}

void DropInputOf(HWND window) {
    std::erase_if(queue, [window](const QueuedMessage& queued) {
        return queued.message.hwnd == window && IsInput(queued.message.message);
    });
}

LRESULT SendMessageW(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const bool reachable = IsLiveWindow(window) || IsMenuBar(window);
    return reachable ? Call(window, message, wParam, lParam) : 0;
}

BOOL PostMessageW(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (!IsLiveWindow(window)) {
        return FALSE;
    }
    PostMessage({{window, message, wParam, lParam}});
    return TRUE;
}

void PostQuitMessage(int exitCode) {
    PostMessage({{nullptr, WM_QUIT, static_cast<WPARAM>(exitCode), 0}});
}

LRESULT DefWindowProcW(HWND window, UINT message, WPARAM, LPARAM) {
    if (message == WM_CLOSE) {
        DestroyWindow(window);
    } else if (message == WM_PAINT) {
        ValidateWindow(window);
    }
    return 0;
}

BOOL GetMessageW(MSG* message, HWND, UINT, UINT) {
    while (queue.empty()) {
        PaintAllDue();
        if (queue.empty()) {
            QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
        }
    }
    current = queue.front();
    queue.pop_front();
    *message = current.message;
    return message->message != WM_QUIT;
}

BOOL TranslateMessage(const MSG*) {
    return FALSE;
}

LRESULT DispatchMessageW(const MSG* message) {
    return SendMessageW(message->hwnd, message->message, message->wParam, message->lParam);
}

HACCEL LoadAcceleratorsW(HINSTANCE instance, int table) {
    const auto found =
        std::find_if(instance->acceleratorTables.begin(), instance->acceleratorTables.end(),
                     [table](const AcceleratorTable& candidate) { return candidate.id == table; });
    return found == instance->acceleratorTables.end() ? nullptr : &*found;
}

BOOL TranslateAcceleratorW(HWND window, HACCEL table, const MSG* message) {
    if (table == nullptr || !IsKey(message->message) || !current.shortcut) {
        return FALSE;
    }
    for (const AcceleratorResource& accelerator : table->accelerators) {
        if (static_cast<WPARAM>(accelerator.key) == message->wParam) {
            constexpr WPARAM fromAccelerator = 1 << 16;
            SendMessageW(window, WM_COMMAND,
                         static_cast<WPARAM>(accelerator.command) | fromAccelerator, 0);
            return TRUE;
        }
    }
    return FALSE;
}

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

void Sleep(DWORD milliseconds) {
    ShowNow();
    QThread::msleep(milliseconds);
}
