// The artwork, rendered from its SVG at the size asked for.
#pragma once

#include <QtGui/QImage>
#include <vector>

// Rendered once for each size and kept. Null when there is no such file.
const QImage& RenderArt(const char* file, QSize size);

// Renders files beside whatever comes next; the first RenderArt waits for them. For the pictures
// of the first frame.
void RenderArtAhead(const std::vector<const char*>& files, QSize size);
