// Pictures from SVG, by the toolkit's plugin for them.
#pragma once

#include <QtGui/QImage>

// Premultiplied, exactly as large as asked for. Null for an empty size and for what is no SVG file.
QImage RenderSvg(const QString& path, QSize size);

// Square artwork that the first frame shows is rendered when the program is built, for some sides
// in device pixels: loading the plugin is 6 % of the time to the first frame. This is its name in
// the bundle's folder "baked".
QString BakedName(const QString& file, int side);
