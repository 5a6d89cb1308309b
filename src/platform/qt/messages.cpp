// The message queue, the loop, accelerators and timers.
//
// Supported: what windows.h lists. Left out: message filters, thread messages, timers with a
// procedure, WM_CHAR (letters arrive as virtual keys).
#include <QtCore/QCoreApplication>
#include <QtCore/QThread>
#include <QtCore/QTimer>
#include <algorithm>
#include <deque>
#include <map>
#include <memory>

#include "platform/qt/host_window.h"
#include "platform/qt/message_queue.h"
#include "platform/qt/window.h"
#include "platform/resources.h"

namespace {

std::deque<QueuedMessage> queue;
QueuedMessage current;
int procedureDepth = 0;

using TimerKey = std::pair<HWND, WPARAM>;
std::map<TimerKey, std::unique_ptr<QTimer>> timers;

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
    std::erase_if(timers, [window](const auto& timer) { return timer.first.first == window; });
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
    auto timer = std::make_unique<QTimer>();
    timer->setTimerType(Qt::PreciseTimer);
    QObject::connect(timer.get(), &QTimer::timeout,
                     [window, id] { SendMessageW(window, WM_TIMER, id, 0); });
    timer->start(static_cast<int>(milliseconds));
    timers[{window, id}] = std::move(timer);
    return id;
}

BOOL KillTimer(HWND window, WPARAM id) {
    const auto found = timers.find({window, id});
    if (found == timers.end()) {
        return FALSE;
    }
    // The timer may be the one whose message is being handled.
    found->second.release()->deleteLater();
    timers.erase(found);
    return TRUE;
}

void Sleep(DWORD milliseconds) {
    ShowNow();
    QThread::msleep(milliseconds);
}
