// Renders square SVG files to raw pixels:
//
//   bake_art FOLDER SIDE[,SIDE...] FILE.svg...
//
// Writes FOLDER/FILE.svg.SIDE: rows of premultiplied ARGB words in the machine's byte order.
#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <cstdio>

#include "platform/qt/look/svg.h"

namespace {

bool Bake(const QDir& folder, const QString& path, int side) {
    const QImage picture = RenderSvg(path, {side, side});
    QFile file(folder.filePath(BakedName(QFileInfo(path).fileName(), side)));
    if (picture.isNull()) {
        std::fprintf(stderr, "%s: cannot be rendered; is the SVG plugin of the toolkit there?\n",
                     qPrintable(path));
        return false;
    }
    const qint64 size = picture.sizeInBytes();
    if (!file.open(QFile::WriteOnly) ||
        file.write(reinterpret_cast<const char*>(picture.constBits()), size) != size) {
        std::fprintf(stderr, "%s: %s\n", qPrintable(file.fileName()),
                     qPrintable(file.errorString()));
        return false;
    }
    return true;
}

}  // namespace

int main(int argumentCount, char** arguments) {
    const QCoreApplication application(argumentCount, arguments);
    const QStringList given = QCoreApplication::arguments();
    constexpr qsizetype firstFile = 3;
    if (given.size() <= firstFile) {
        std::fprintf(stderr, "usage: bake_art FOLDER SIDE[,SIDE...] FILE.svg...\n");
        return 2;
    }
    for (const QString& path : given.mid(firstFile)) {
        for (const QString& side : given[2].split(',')) {
            if (!Bake(QDir(given[1]), path, side.toInt())) {
                return 1;
            }
        }
    }
    return 0;
}
