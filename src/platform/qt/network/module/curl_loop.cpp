#include "platform/qt/network/module/curl_loop.h"

#include <utility>

void CurlLoop::Later::operator()(QSocketNotifier* notifier) const {
    notifier->setEnabled(false);
    notifier->disconnect();
    notifier->deleteLater();
}

CurlLoop::CurlLoop() {
    curl_multi_setopt(multi, CURLMOPT_SOCKETFUNCTION, OnSocket);
    curl_multi_setopt(multi, CURLMOPT_SOCKETDATA, this);
    curl_multi_setopt(multi, CURLMOPT_TIMERFUNCTION, OnTimer);
    curl_multi_setopt(multi, CURLMOPT_TIMERDATA, this);
    timer.setSingleShot(true);
    QObject::connect(&timer, &QTimer::timeout, [this] { Advance(CURL_SOCKET_TIMEOUT, 0); });
}

CurlLoop::~CurlLoop() {
    curl_multi_cleanup(multi);
}

void CurlLoop::Add(CURL* easy, std::function<void(CURLcode)> whenEnded) {
    ended = std::move(whenEnded);
    curl_multi_add_handle(multi, easy);
}

void CurlLoop::Remove(CURL* easy) {
    curl_multi_remove_handle(multi, easy);
}

int CurlLoop::OnSocket(CURL*, curl_socket_t socket, int wanted, void* loop, void*) {
    auto* self = static_cast<CurlLoop*>(loop);
    self->watched.erase(socket);
    if (wanted != CURL_POLL_REMOVE) {
        auto& [input, output] = self->watched[socket];
        if ((wanted & CURL_POLL_IN) != 0) {
            input = self->Watch(socket, QSocketNotifier::Read, CURL_CSELECT_IN);
        }
        if ((wanted & CURL_POLL_OUT) != 0) {
            output = self->Watch(socket, QSocketNotifier::Write, CURL_CSELECT_OUT);
        }
    }
    return 0;
}

int CurlLoop::OnTimer(CURLM*, long milliseconds, void* loop) {
    auto* self = static_cast<CurlLoop*>(loop);
    milliseconds < 0 ? self->timer.stop() : self->timer.start(static_cast<int>(milliseconds));
    return 0;
}

CurlLoop::Notifier CurlLoop::Watch(curl_socket_t socket, QSocketNotifier::Type type, int event) {
    Notifier notifier(new QSocketNotifier(socket, type));
    QObject::connect(notifier.get(), &QSocketNotifier::activated,
                     [this, socket, event] { Advance(socket, event); });
    return notifier;
}

void CurlLoop::Advance(curl_socket_t socket, int event) {
    int running = 0;
    curl_multi_socket_action(multi, socket, event, &running);
    int left = 0;
    while (const CURLMsg* message = curl_multi_info_read(multi, &left)) {
        if (message->msg == CURLMSG_DONE) {
            // It may begin the next one.
            const auto tell = ended;
            tell(message->data.result);
        }
    }
}
