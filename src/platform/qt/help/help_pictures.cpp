#include "platform/qt/help/help_pictures.h"

#include <QtGui/QFontMetricsF>
#include <QtGui/QPainter>
#include <QtGui/QTextDocument>

#include "platform/qt/look/art.h"

namespace {

QSizeF PictureSize(const QTextDocument& document, const QTextFormat& format) {
    constexpr double usualText = 16;
    const QTextImageFormat image = format.toImageFormat();
    return QSizeF(image.width(), image.height()) * (document.defaultFont().pixelSize() / usualText);
}

// How far a picture reaches below the line that the letters stand on: as far as a "p".
double Descent(const QTextDocument& document) {
    return QFontMetricsF(document.defaultFont()).descent();
}

}  // namespace

// What reaches below the line is not counted: a line with a small picture is no higher than others.
QSizeF HelpPictures::intrinsicSize(QTextDocument* document, int, const QTextFormat& format) {
    const QSizeF size = PictureSize(*document, format);
    return {size.width(), size.height() - Descent(*document)};
}

void HelpPictures::drawObject(QPainter* painter, const QRectF& place, QTextDocument* document, int,
                              const QTextFormat& format) {
    const double ratio = painter->device()->devicePixelRatioF();
    const QSizeF size = PictureSize(*document, format);
    const QByteArray file = format.toImageFormat().name().toLatin1();
    QImage picture = RenderArt(file.constData(), (size * ratio).toSize());
    picture.setDevicePixelRatio(ratio);
    painter->drawImage(place.topLeft(), picture);
}
