// Transfers of libcurl on the toolkit's event loop.
#pragma once

#include <curl/curl.h>

#include <QtCore/QSocketNotifier>
#include <QtCore/QTimer>
#include <functional>
#include <map>
#include <memory>

class CurlLoop {
public:
    CurlLoop();
    ~CurlLoop();
    CurlLoop(const CurlLoop&) = delete;
    CurlLoop& operator=(const CurlLoop&) = delete;

    // One at a time; it is told when it has ended.
    void Add(CURL* easy, std::function<void(CURLcode)> whenEnded);
    // One that is not there is none.
    void Remove(CURL* easy);

private:
    // Deleted by the event loop: one of them may be what calls.
    struct Later {
        void operator()(QSocketNotifier* notifier) const;
    };
    using Notifier = std::unique_ptr<QSocketNotifier, Later>;

    static int OnSocket(CURL*, curl_socket_t socket, int wanted, void* loop, void*);
    static int OnTimer(CURLM*, long milliseconds, void* loop);
    Notifier Watch(curl_socket_t socket, QSocketNotifier::Type type, int event);
    void Advance(curl_socket_t socket, int event);

    CURLM* multi = curl_multi_init();
    std::map<curl_socket_t, std::pair<Notifier, Notifier>> watched;
    QTimer timer;
    std::function<void(CURLcode)> ended;
};
