#include "platform/qt/look/art.h"

#include <QtCore/QResource>
#include <cstring>
#include <map>
#include <thread>
#include <tuple>

#include "platform/qt/look/svg.h"

namespace {

using ArtKey = std::tuple<QString, int, int>;

ArtKey KeyOf(const char* file, QSize size) {
    return {QString::fromLatin1(file), size.width(), size.height()};
}

std::map<ArtKey, QImage> rendered;

// While it runs nobody else touches what is rendered.
std::jthread ahead;  // joined at the end, whichever way the process ends

// Null when the build has not rendered it at this size. Loading the plugin takes longer than all
// else that the first frame needs.
QImage FindBaked(const QString& file, QSize size) {
    const QResource baked(":/baked/" + BakedName(file, size.width()));
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    if (!baked.isValid() || baked.size() != picture.sizeInBytes()) {
        return {};
    }
    std::memcpy(picture.bits(), baked.data(), static_cast<std::size_t>(baked.size()));
    return picture;
}

const QImage& Keep(const ArtKey& key, QImage picture) {
    // A window that is being resized asks for many sizes; the last few dozen are enough.
    constexpr size_t mostKept = 64;
    if (rendered.size() >= mostKept) {
        rendered.clear();
    }
    return rendered.emplace(key, std::move(picture)).first->second;
}

const QImage& FindOrRender(const char* file, QSize size) {
    const ArtKey key = KeyOf(file, size);
    const auto found = rendered.find(key);
    if (found != rendered.end()) {
        return found->second;
    }
    QImage baked = FindBaked(std::get<0>(key), size);
    return Keep(key, baked.isNull() ? RenderSvg(":/art/" + std::get<0>(key), size) : baked);
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
    if (files.empty() || !FindBaked(QString::fromLatin1(files.front()), size).isNull()) {
        return;
    }
    ahead = std::jthread([files, size] {
        for (const char* file : files) {
            FindOrRender(file, size);
        }
    });
}
