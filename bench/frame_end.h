// Ends a program that start_time measures as soon as the frame being painted is on its way to the
// display, and prints that moment: the end of a process takes time of its own.
#pragma once

#include <QtCore/QTimer>
#include <chrono>
#include <cstdio>
#include <cstdlib>

// To be called while the frame is painted. Prints microseconds since 1970.
inline void EndAfterThisFrame() {
    QTimer::singleShot(0, [] {
        using std::chrono::microseconds;
        const auto now = std::chrono::system_clock::now().time_since_epoch();
        const auto moment = std::chrono::duration_cast<microseconds>(now).count();
        std::printf("%lld\n", static_cast<long long>(moment));
        std::fflush(stdout);
        std::_Exit(0);
    });
}
