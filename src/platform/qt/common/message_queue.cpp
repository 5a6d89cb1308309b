#include "platform/qt/common/message_queue.h"

#include <deque>

namespace {

std::deque<QueuedMessage> queue;
QueuedMessage current;

}  // namespace

void PostMessage(const QueuedMessage& message) {
    queue.push_back(message);
}

bool MessagesWaiting() {
    return !queue.empty();
}

const QueuedMessage& TakeMessage() {
    current = queue.front();
    queue.pop_front();
    return current;
}

const QueuedMessage& CurrentMessage() {
    return current;
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

void DropMessagesOf(HWND window) {
    std::erase_if(queue,
                  [window](const QueuedMessage& queued) { return queued.message.hwnd == window; });
}

void DropInputOf(HWND window) {
    std::erase_if(queue, [window](const QueuedMessage& queued) {
        return queued.message.hwnd == window && IsInput(queued.message.message);
    });
}
