// Renders a square SVG file to a PNG file:
//
//   draw_icon FILE.svg SIDE FILE.png
#include <QtCore/QCoreApplication>
#include <cstdio>

#include "platform/qt/look/svg.h"

int main(int argumentCount, char** arguments) {
    const QCoreApplication application(argumentCount, arguments);
    const QStringList given = QCoreApplication::arguments();
    if (given.size() != 4) {
        std::fprintf(stderr, "usage: draw_icon FILE.svg SIDE FILE.png\n");
        return 2;
    }
    const int side = given[2].toInt();
    if (!RenderSvg(given[1], {side, side}).save(given[3], "PNG")) {
        std::fprintf(stderr, "%s cannot be drawn into %s\n", qPrintable(given[1]),
                     qPrintable(given[3]));
        return 1;
    }
    return 0;
}
