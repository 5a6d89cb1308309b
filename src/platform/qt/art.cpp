#include "platform/qt/art.h"

#include <QtGui/QImageReader>
#include <map>
#include <thread>
#include <tuple>

namespace {

using ArtKey = std::tuple<QString, int, int>;

// By the toolkit's plugin, which is loaded here: linked to the program, its library would be on the
// way of every start's main thread.
QImage RenderFile(const QString& path, QSize size) {
    if (size.isEmpty()) {
        return {};
    }
    QImageReader reader(path, "svg");
    reader.setScaledSize(size);
    return reader.read().convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

std::map<ArtKey, QImage> rendered;

// While it runs nobody else touches what is rendered.
std::jthread ahead;  // joined at the end, whichever way the process ends

const QImage& FindOrRender(const char* file, QSize size) {
    // A window that is being resized asks for many sizes; the last few dozen are enough.
    constexpr size_t mostKept = 64;
    const ArtKey key(QString::fromLatin1(file), size.width(), size.height());
    auto found = rendered.find(key);
    if (found == rendered.end()) {
        if (rendered.size() >= mostKept) {
            rendered.clear();
        }
        found = rendered.emplace(key, RenderFile(":/art/" + std::get<0>(key), size)).first;
    }
    return found->second;
}

void AwaitAhead() {
    if (ahead.joinable()) {
        ahead.join();
    }
}

}  // namespace

const QImage& RenderArt(const char* file, QSize size) {
    AwaitAhead();
    return FindOrRender(file, size);
}

void RenderArtAhead(const std::vector<const char*>& files, QSize size) {
    AwaitAhead();
    ahead = std::jthread([files, size] {
        for (const char* file : files) {
            FindOrRender(file, size);
        }
    });
}
