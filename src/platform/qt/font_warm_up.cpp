#include "platform/qt/font_warm_up.h"

#include <dlfcn.h>

#include <QtGui/QFontDatabase>
#include <thread>
#include <utility>

namespace {

std::jthread reader;  // joined at the end, whichever way the process ends

void ReadConfiguration() {
    // Loaded by name, since the toolkit has it in any case and this needs one function of it.
    void* library = dlopen("libfontconfig.so.1", RTLD_LAZY);
    auto* initialize =
        library == nullptr ? nullptr : reinterpret_cast<int (*)()>(dlsym(library, "FcInit"));
    if (initialize != nullptr) {
        initialize();
    }
}

}  // namespace

void WarmUpFonts() {
    reader = std::jthread(ReadConfiguration);
}

void WarmUpFontDatabase() {
    reader = std::jthread([configuration = std::move(reader)]() mutable {
        configuration.join();
        QFontDatabase::hasFamily("Liberation Sans");
    });
}

void AwaitFonts() {
    if (reader.joinable()) {
        reader.join();
    }
}
