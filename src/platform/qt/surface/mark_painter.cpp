#include "platform/qt/surface/mark_painter.h"

#include <QtGui/QPen>

#include "platform/qt/look/art.h"
#include "platform/qt/surface/text_painter.h"

namespace {

// In device pixels.
struct CopyPlace {
    CopyPlace(const Scale& scale, const RECT& area, QSize sourceSize, POINT source)
        : target(scale.Area(area)) {
        const QRect wanted(QPoint(scale.At(source.x), scale.At(source.y)), target.size());
        from = wanted & QRect(QPoint(), sourceSize);
        usable = from.translated(target.topLeft() - wanted.topLeft());
    }

    QRect target;
    QRect usable;  // the part of the target for which the source has pixels
    QRect from;    // where they are in the source
};

class MarkPainter {
public:
    MarkPainter(QPainter& to, const Scale& at) : painter(to), scale(at) {
    }

    void operator()(const FillMark& mark) const {
        painter.fillRect(scale.Area(mark.area), QColor::fromRgb(mark.color));
    }
    void operator()(const FrameMark& mark) const;
    void operator()(const LineMark& mark) const;
    void operator()(const TextMark& mark) const {
        PaintText(painter, scale, mark);
    }
    void operator()(const ArtMark& mark) const {
        const QRect area = scale.Area(mark.area);
        if (const QImage& art = RenderArt(mark.file, area.size()); !art.isNull()) {
            painter.drawImage(area.topLeft(), art);
        }
    }
    void operator()(const CopyMark& mark) const;

private:
    void PaintRoundFrame(const FrameMark& mark, const QRect& outer) const;

    QPainter& painter;
    const Scale& scale;
};

// From the first to the last logical pixel, each as thick as a line: neighbouring frames that
// share an outline then share it in device pixels too.
QRect OuterArea(const Scale& scale, const RECT& area) {
    const int beyond = scale.LineThickness() - 1;
    return QRect(QPoint(scale.At(area.left), scale.At(area.top)),
                 QPoint(scale.At(area.right - 1) + beyond, scale.At(area.bottom - 1) + beyond));
}

void MarkPainter::operator()(const FrameMark& mark) const {
    if (mark.area.right <= mark.area.left || mark.area.bottom <= mark.area.top) {
        return;
    }
    const QRect outer = OuterArea(scale, mark.area);
    if (!mark.corner.isEmpty()) {
        PaintRoundFrame(mark, outer);
    } else if (mark.outline == mark.fill) {
        painter.fillRect(outer, QColor::fromRgb(mark.fill));
    } else {
        const int thickness = scale.LineThickness();
        const QColor outline = QColor::fromRgb(mark.outline);
        painter.fillRect(outer.left(), outer.top(), outer.width(), thickness, outline);
        painter.fillRect(outer.left(), outer.bottom() + 1 - thickness, outer.width(), thickness,
                         outline);
        painter.fillRect(outer.left(), outer.top(), thickness, outer.height(), outline);
        painter.fillRect(outer.right() + 1 - thickness, outer.top(), thickness, outer.height(),
                         outline);
        const QRect inside = outer.adjusted(thickness, thickness, -thickness, -thickness);
        if (inside.isValid()) {
            painter.fillRect(inside, QColor::fromRgb(mark.fill));
        }
    }
}

void MarkPainter::PaintRoundFrame(const FrameMark& mark, const QRect& outer) const {
    const int thickness = scale.LineThickness();
    const double half = thickness / 2.0;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    QPen pen(QColor::fromRgb(mark.outline), thickness);
    painter.setPen(pen);
    painter.setBrush(QColor::fromRgb(mark.fill));
    painter.drawRoundedRect(QRectF(outer).adjusted(half, half, -half, -half),
                            mark.corner.width() * scale.ratio / 2,
                            mark.corner.height() * scale.ratio / 2);
    painter.restore();
}

// At a fractional ratio a line begins right behind the pixel before it and ends right before the
// next one, so that a bevel never parts from its outline.
void MarkPainter::operator()(const LineMark& mark) const {
    const RECT& area = mark.area;
    if (area.right <= area.left || area.bottom <= area.top) {
        return;
    }
    const int thickness = scale.LineThickness();
    const bool across = area.right - area.left > 1;
    const bool down = area.bottom - area.top > 1;
    const QPoint first(scale.At(area.left - 1) + thickness, scale.At(area.top - 1) + thickness);
    const QPoint last(across ? scale.At(area.right) - 1 : scale.At(area.left) + thickness - 1,
                      down ? scale.At(area.bottom) - 1 : scale.At(area.top) + thickness - 1);
    painter.fillRect(QRect(first, last), QColor::fromRgb(mark.color));
}

// Straight from the source's marks: pixels of it may not exist at this ratio.
void MarkPainter::operator()(const CopyMark& mark) const {
    const QSize size = mark.picture->size;
    const CopyPlace place(scale, mark.area, QSize(scale.At(size.width()), scale.At(size.height())),
                          mark.source);
    painter.save();
    painter.setClipRect(place.target, Qt::IntersectClip);
    if (place.usable != place.target || NeedsGround(*mark.picture)) {
        painter.fillRect(place.target, Qt::white);
    }
    painter.setClipRect(place.usable, Qt::IntersectClip);
    painter.translate(place.usable.topLeft() - place.from.topLeft());
    PaintPicture(painter, scale, *mark.picture);
    painter.restore();
}

}  // namespace

void PaintMark(QPainter& painter, const Scale& scale, const Mark& mark) {
    std::visit(MarkPainter(painter, scale), mark);
}

void PaintPicture(QPainter& painter, const Scale& scale, const Picture& picture) {
    for (const Mark& mark : picture.marks) {
        PaintMark(painter, scale, mark);
    }
}

void CopyPixels(QPainter& painter, const Scale& scale, const RECT& area, const QImage& from,
                POINT source) {
    const CopyPlace place(scale, area, from.size(), source);
    if (place.usable != place.target) {
        painter.fillRect(place.target, Qt::white);
    }
    if (!place.usable.isEmpty()) {
        painter.drawImage(place.usable.topLeft(), from, place.from);
    }
}
