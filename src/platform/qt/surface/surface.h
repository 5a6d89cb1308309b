// A drawable area of the handheld, held at the host's resolution.
#pragma once

#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <memory>

#include "platform/qt/common/change_map.h"
#include "platform/qt/common/marks.h"
#include "platform/qt/common/scale.h"

// Drawing is remembered first and rendered when the pixels are asked for: a board that is painted
// anew from top to bottom costs no more than the cells that changed.
class Surface {
public:
    // White, at the handheld's present ratio. A size below one logical pixel counts as one.
    Surface(int width, int height);
    ~Surface();
    Surface(const Surface&) = delete;
    Surface& operator=(const Surface&) = delete;

    QSize Size() const {
        return picture->size;
    }
    Scale PresentScale() const {
        return scale;
    }

    void Draw(Mark mark);
    // Copies pixels, and remembers the source's marks for the day the ratio changes.
    void Copy(const RECT& area, Surface& from, POINT source);

    // The pixels with all that was drawn. Valid until the next call that draws.
    const QImage& Image();
    // The same, of which the area, in logical pixels, is right at least: what nobody sees of a
    // large board need not be rendered.
    const QImage& ImageWithin(const RECT& area);
    // Paints the same; the first time straight from the marks, which is the quicker way to a frame
    // when there are no pixels yet, by 8 % of the time to the first one. The painter's unit is a device pixel.
    void Paint(QPainter& painter);

    // Content outside the new size is lost; what is new is white.
    void Resize(int width, int height);

    // Renders every surface anew at the ratio, sharp.
    static void SetRatioOfAll(double ratio);

private:
    void ForgetPixels();
    void Remember(Mark mark);
    void StartPicture(const std::vector<Mark>& marks);
    void DropHiddenMarks();
    void Render();
    void RenderWithin(const RECT& area);
    void RenderNewMarks(QPainter& painter);
    void RenderChanges(QPainter& painter, const RECT& within);
    void RenderArea(QPainter& painter, const RECT& area);

    Scale scale;
    std::shared_ptr<Picture> picture;
    size_t marksWorthDropping;
    ChangeMap changes;
    // What the image holds of the picture: nothing since it was started anew, the tiles that have
    // not changed since, or all but the newest marks.
    enum class Rendered { Nothing, Tiles, Marks };
    Rendered rendered = Rendered::Nothing;
    size_t renderedMarks = 0;
    bool pixelsWanted = false;
    QImage image;
};
