#include "platform/qt/look/art.h"

#include <QtCore/QResource>
#include <cstring>
#include <map>
#include <tuple>

#include "platform/qt/look/svg.h"

namespace {

using ArtKey = std::tuple<QString, int, int>;

ArtKey KeyOf(const char* file, QSize size) {
    return {QString::fromLatin1(file), size.width(), size.height()};
}

std::map<ArtKey, QImage> rendered;

// Null when the build has not rendered it at this size.
QImage FindBaked(const QString& file, QSize size) {
    const QByteArray pixels =
        QResource(":/baked/" + BakedName(file, size.width())).uncompressedData();
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    if (pixels.isEmpty() || pixels.size() != picture.sizeInBytes()) {
        return {};
    }
    std::memcpy(picture.bits(), pixels.data(), static_cast<std::size_t>(pixels.size()));
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

}  // namespace

const QImage& RenderArt(const char* file, QSize size) {
    const ArtKey key = KeyOf(file, size);
    const auto found = rendered.find(key);
    if (found != rendered.end()) {
        return found->second;
    }
    QImage baked = FindBaked(std::get<0>(key), size);
    return Keep(key, baked.isNull() ? RenderSvg(":/art/" + std::get<0>(key), size) : baked);
}
