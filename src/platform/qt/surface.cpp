#include "platform/qt/surface.h"

#include <algorithm>
#include <set>

#include "platform/qt/mark_painter.h"

namespace {

// Every surface alive, so that a new ratio reaches them all.
std::set<Surface*> surfaces;
double ratioOfAll = 1;

// Below this many marks looking for hidden ones costs more than drawing them again would.
constexpr size_t fewMarks = 64;

RECT WholeArea(QSize size) {
    return {0, 0, size.width(), size.height()};
}

QSize UsableSize(int width, int height) {
    return {std::max(width, 1), std::max(height, 1)};
}

}  // namespace

Surface::Surface(int width, int height)
    : scale{ratioOfAll}, picture(std::make_shared<Picture>()), marksWorthDropping(fewMarks) {
    picture->size = UsableSize(width, height);
    Remake();
    surfaces.insert(this);
}

Surface::~Surface() {
    surfaces.erase(this);
}

void Surface::ClosePainter() const {
    if (painter.isActive()) {
        painter.end();
    }
}

void Surface::Remake() {
    ClosePainter();
    const QSize size = picture->size;
    image = QImage(std::max(scale.At(size.width()), 1), std::max(scale.At(size.height()), 1),
                   QImage::Format_RGB32);
    image.fill(Qt::white);
    painter.begin(&image);
    PaintPicture(painter, scale, *picture);
}

void Surface::Draw(Mark mark) {
    if (!painter.isActive()) {
        painter.begin(&image);
    }
    PaintMark(painter, scale, mark);
    Remember(std::move(mark));
}

void Surface::Copy(const RECT& area, const Surface& from, POINT source) {
    if (!painter.isActive()) {
        painter.begin(&image);
    }
    CopyPixels(painter, scale, area, from.Image(), source);
    Remember(CopyMark{area, source, from.picture});
}

void Surface::Remember(Mark mark) {
    const bool hidesAll = Contains(HiddenArea(mark), WholeArea(picture->size));
    if (hidesAll || picture.use_count() > 1) {
        // A copy elsewhere still needs the marks as they were.
        auto next = std::make_shared<Picture>();
        next->size = picture->size;
        next->marks.reserve(picture->marks.size() + 1);
        if (!hidesAll) {
            next->marks = picture->marks;
        } else {
            marksWorthDropping = fewMarks;
        }
        picture = std::move(next);
    }
    picture->marks.push_back(std::move(mark));
    if (picture->marks.size() > marksWorthDropping) {
        DropHiddenMarks();
    }
}

// A window lives long and is drawn on piece by piece; without this its marks would pile up.
void Surface::DropHiddenMarks() {
    constexpr size_t mostCovers = 16;
    std::vector<RECT> covers;
    std::vector<Mark> kept;
    const QSize size = picture->size;
    const int worthwhileArea = size.width() * size.height() / 32;
    for (auto mark = picture->marks.rbegin(); mark != picture->marks.rend(); ++mark) {
        const RECT touched = TouchedArea(*mark);
        if (std::any_of(covers.begin(), covers.end(),
                        [&](const RECT& cover) { return Contains(cover, touched); })) {
            continue;
        }
        const RECT hidden = HiddenArea(*mark);
        if ((hidden.right - hidden.left) * (hidden.bottom - hidden.top) > worthwhileArea &&
            covers.size() < mostCovers) {
            covers.push_back(hidden);
        }
        kept.push_back(std::move(*mark));
    }
    std::reverse(kept.begin(), kept.end());
    picture->marks = std::move(kept);
    marksWorthDropping = std::max(fewMarks, picture->marks.size() * 2);
}

const QImage& Surface::Image() const {
    ClosePainter();
    return image;
}

void Surface::Resize(int width, int height) {
    const QSize size = UsableSize(width, height);
    if (size == picture->size) {
        return;
    }
    picture = std::make_shared<Picture>(*picture);
    picture->size = size;
    Remake();
}

void Surface::SetRatioOfAll(double ratio) {
    if (ratio == ratioOfAll) {
        return;
    }
    ratioOfAll = ratio;
    for (Surface* surface : surfaces) {
        surface->scale.ratio = ratio;
        surface->Remake();
    }
}

double Surface::RatioOfAll() {
    return ratioOfAll;
}
