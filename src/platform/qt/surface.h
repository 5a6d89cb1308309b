// A drawable area of the handheld, held at the host's resolution.
#pragma once

#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <memory>

#include "platform/qt/marks.h"

// From logical to device pixels. At a fractional ratio neighbouring areas meet without a gap,
// and all lines have the same thickness.
struct Scale {
    double ratio = 1;

    int At(int logical) const {
        return qRound(logical * ratio);
    }
    int LineThickness() const {
        return qMax(1, static_cast<int>(ratio));
    }
    QRect Area(const RECT& area) const {
        return QRect(QPoint(At(area.left), At(area.top)),
                     QPoint(At(area.right) - 1, At(area.bottom) - 1));
    }
};

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
    void Copy(const RECT& area, const Surface& from, POINT source);

    // Valid until the next call that draws.
    const QImage& Image() const;

    // Content outside the new size is lost; what is new is white.
    void Resize(int width, int height);

    // Draws every surface anew at the ratio, sharp.
    static void SetRatioOfAll(double ratio);
    static double RatioOfAll();

private:
    void ClosePainter() const;
    void Remake();
    void Remember(Mark mark);
    void DropHiddenMarks();

    Scale scale;
    std::shared_ptr<Picture> picture;
    size_t marksWorthDropping;
    mutable QImage image;
    mutable QPainter painter;  // open between drawings, since opening it costs more than a cell
};
