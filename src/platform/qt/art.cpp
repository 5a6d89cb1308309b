#include "platform/qt/art.h"

#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>
#include <map>
#include <thread>
#include <tuple>

namespace {

using ArtKey = std::tuple<QString, int, int>;

QImage RenderFile(const QString& path, QSize size) {
    QSvgRenderer renderer(path);
    if (!renderer.isValid() || size.isEmpty()) {
        return {};
    }
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter, QRectF(QPointF(), QSizeF(size)));
    return image;
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
