#include "platform/qt/look/font_warm_up.h"

#include <dlfcn.h>

#include <QtGui/QFontDatabase>
#include <thread>
#include <utility>

namespace {

// What is needed of the system's font library; loaded by name, since the toolkit has it anyhow.
class FontLibrary {
public:
    FontLibrary() {
        library = dlopen("libfontconfig.so.1", RTLD_LAZY);
        Find(initialize, "FcInit");
        Find(create, "FcConfigCreate");
        Find(destroy, "FcConfigDestroy");
        Find(parse, "FcConfigParseAndLoad");
        Find(buildFonts, "FcConfigBuildFonts");
        Find(makeCurrent, "FcConfigSetCurrent");
    }

    // As the library itself does it, but without its templates, which are there to be described to
    // users and are a third of the work. Whatever is unusual is left to the library.
    void ReadConfiguration() const {
        if (!complete) {
            return;
        }
        void* configuration = create();
        if (configuration == nullptr) {
            return;
        }
        const bool usable = parse(configuration, nullptr, 1) != 0 && buildFonts(configuration) != 0;
        if (usable) {
            makeCurrent(configuration);  // with a reference of its own
        }
        destroy(configuration);
        if (!usable) {
            initialize();
        }
    }

private:
    template <typename Function>
    void Find(Function*& function, const char* name) {
        void* symbol = library == nullptr ? nullptr : dlsym(library, name);
        function = reinterpret_cast<Function*>(symbol);
        complete = complete && symbol != nullptr;
    }

    void* library;
    bool complete = true;
    int (*initialize)();
    void* (*create)();
    void (*destroy)(void* configuration);
    int (*parse)(void* configuration, const unsigned char* usualFile, int complain);
    int (*buildFonts)(void* configuration);
    int (*makeCurrent)(void* configuration);
};

std::jthread reader;  // joined at the end, whichever way the process ends

}  // namespace

void WarmUpFonts() {
    reader = std::jthread([] { FontLibrary().ReadConfiguration(); });
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
