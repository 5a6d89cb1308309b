#include "platform/qt/look/svg.h"

#include <QtGui/QImageReader>

QImage RenderSvg(const QString& path, QSize size) {
    if (size.isEmpty()) {
        return {};
    }
    // The plugin is loaded here: linked to the program, its library would be on the way of every
    // start's main thread.
    QImageReader reader(path, "svg");
    reader.setScaledSize(size);
    return reader.read().convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

QString BakedName(const QString& file, int side) {
    return file + '.' + QString::number(side);
}
