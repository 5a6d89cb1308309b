#include "platform/qt/look/font_warm_up.h"

#include <QtGui/QFontDatabase>
#include <thread>

namespace {

std::jthread reader;  // joined at the end, whichever way the process ends

}  // namespace

void WarmUpFonts() {
    // Any question about fonts has the toolkit read the list of them.
    reader = std::jthread([] { QFontDatabase::hasFamily("Liberation Sans"); });
}

void AwaitFonts() {
    if (reader.joinable()) {
        reader.join();
    }
}
