// The artwork, rendered from its SVG at the size asked for.
#pragma once

#include <QtGui/QImage>

// Rendered once for each size and kept. Null when there is no such file.
const QImage& RenderArt(const char* file, QSize size);
