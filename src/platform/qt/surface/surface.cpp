#include "platform/qt/surface/surface.h"

#include <algorithm>
#include <set>

#include "platform/qt/surface/mark_painter.h"

namespace {

// Every surface alive, so that a new ratio reaches them all.
std::set<Surface*> surfaces;
double ratioOfAll = 1;

// Below this many marks looking for hidden ones costs more than drawing them again would.
constexpr size_t fewMarks = 256;

constexpr QRgb white = qRgb(255, 255, 255);

// At a fractional ratio the device pixels of a copy may begin or end in a neighbouring pixel.
RECT SourceArea(const RECT& area, POINT source) {
    return {source.x - 1, source.y - 1, source.x + area.right - area.left + 1,
            source.y + area.bottom - area.top + 1};
}

// At a fractional ratio a line can begin in the pixel before its area.
bool Hides(const RECT& cover, const Mark& mark) {
    RECT touched = TouchedArea(mark);
    if (std::holds_alternative<LineMark>(mark)) {
        --touched.left;
        --touched.top;
    }
    return Contains(cover, touched);
}

QSize UsableSize(int width, int height) {
    return {std::max(width, 1), std::max(height, 1)};
}

}  // namespace

Surface::Surface(int width, int height)
    : scale{ratioOfAll},
      picture(std::make_shared<Picture>()),
      marksWorthDropping(fewMarks),
      changes(UsableSize(width, height)) {
    picture->size = UsableSize(width, height);
    surfaces.insert(this);
}

Surface::~Surface() {
    surfaces.erase(this);
}

void Surface::Draw(Mark mark) {
    Remember(std::move(mark));
}

// Copied at once, so that no later look at this surface has to paint the source's marks.
void Surface::Copy(const RECT& area, Surface& from, POINT source) {
    if (!pixelsWanted && !from.pixelsWanted) {
        Remember(CopyMark{area, source, from.picture});
        return;
    }
    Render();
    const QImage& pixels = from.ImageWithin(SourceArea(area, source));
    {
        QPainter painter(&image);
        CopyPixels(painter, scale, area, pixels, source);
    }
    Remember(CopyMark{area, source, from.picture});
    renderedMarks = picture->marks.size();
    rendered = Rendered::Marks;
    changes.Accept(WholeArea(*picture));
    // An earlier copy that is hidden now would keep a whole picture alive.
    DropHiddenMarks();
}

void Surface::Remember(Mark mark) {
    if (Contains(HiddenArea(mark), WholeArea(*picture))) {
        StartPicture({});
        marksWorthDropping = fewMarks;
        changes.Restart();
        rendered = Rendered::Nothing;
    } else if (picture.use_count() > 1) {
        // A copy elsewhere still needs the marks as they are.
        StartPicture(picture->marks);
    }
    changes.Add(mark);
    picture->marks.push_back(std::move(mark));
    // While a picture is being painted anew its marks are not piling up, and half of it is no
    // sight worth rendering.
    if (rendered != Rendered::Nothing && picture->marks.size() > marksWorthDropping) {
        DropHiddenMarks();
    }
}

void Surface::StartPicture(const std::vector<Mark>& marks) {
    auto next = std::make_shared<Picture>();
    next->size = picture->size;
    next->marks.reserve(picture->marks.size() + 1);
    next->marks = marks;
    picture = std::move(next);
}

// A window lives long and is drawn on piece by piece; without this its marks would pile up.
void Surface::DropHiddenMarks() {
    if (renderedMarks != picture->marks.size() && rendered == Rendered::Marks) {
        rendered = Rendered::Tiles;
    }
    constexpr size_t mostCovers = 16;
    std::vector<RECT> covers;
    std::vector<Mark> kept;
    const QSize size = picture->size;
    const int worthwhileArea = size.width() * size.height() / 32;
    for (auto mark = picture->marks.rbegin(); mark != picture->marks.rend(); ++mark) {
        if (std::any_of(covers.begin(), covers.end(),
                        [&](const RECT& cover) { return Hides(cover, *mark); })) {
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
    renderedMarks = picture->marks.size();
    marksWorthDropping = std::max(fewMarks, picture->marks.size() * 2);
}

const QImage& Surface::Image() {
    Render();
    return image;
}

const QImage& Surface::ImageWithin(const RECT& area) {
    RenderWithin(area);
    return image;
}

void Surface::Paint(QPainter& painter) {
    if (pixelsWanted) {
        painter.drawImage(0, 0, Image());
        return;
    }
    if (NeedsGround(*picture)) {
        painter.fillRect(scale.Area(WholeArea(*picture)), Qt::white);
    }
    PaintPicture(painter, scale, *picture);
    pixelsWanted = true;
}

void Surface::Render() {
    RenderWithin(WholeArea(*picture));
}

void Surface::RenderWithin(const RECT& area) {
    const RECT whole = WholeArea(*picture);
    pixelsWanted = true;
    if (image.isNull()) {
        image = QImage(std::max(scale.At(whole.right), 1), std::max(scale.At(whole.bottom), 1),
                       QImage::Format_RGB32);
    }
    if (rendered != Rendered::Marks) {
        QPainter painter(&image);
        RenderChanges(painter, area);
        changes.Accept(area);
        rendered = Contains(area, whole) ? Rendered::Marks : Rendered::Tiles;
    } else if (renderedMarks != picture->marks.size()) {
        QPainter painter(&image);
        RenderNewMarks(painter);
        changes.Accept(whole);
    }
    renderedMarks = picture->marks.size();
}

void Surface::RenderNewMarks(QPainter& painter) {
    for (size_t i = renderedMarks; i < picture->marks.size(); ++i) {
        PaintMark(painter, scale, picture->marks[i]);
    }
}

// Band by band: several marks lie on each pixel, and those of a large picture would have left the
// processor's cache before the next mark comes.
void Surface::RenderChanges(QPainter& painter, const RECT& within) {
    constexpr int bandHeight = 72;  // logical pixels; the quickest of 24 to 144 for 40 by 40 cells
    for (const RECT& area : changes.ChangedAreas(within)) {
        RECT band = area;
        for (; band.top < area.bottom; band.top += bandHeight) {
            band.bottom = std::min(band.top + bandHeight, area.bottom);
            RenderArea(painter, band);
        }
    }
}

void Surface::RenderArea(QPainter& painter, const RECT& area) {
    painter.setClipRect(scale.Area(area));
    if (NeedsGround(*picture)) {
        painter.fillRect(scale.Area(area), Qt::white);
    }
    for (const Mark& mark : picture->marks) {
        if (Touches(area, TouchedArea(mark))) {
            PaintMark(painter, scale, mark);
        }
    }
}

void Surface::ForgetPixels() {
    image = {};
    changes.Invalidate();
    rendered = Rendered::Nothing;
}

void Surface::Resize(int width, int height) {
    const QSize size = UsableSize(width, height);
    if (size == picture->size) {
        return;
    }
    const QSize before = picture->size;
    picture = std::make_shared<Picture>(*picture);
    picture->size = size;
    // Marks that reached beyond the old edge do not come back.
    if (size.width() > before.width()) {
        picture->marks.push_back(FillMark{{before.width(), 0, size.width(), size.height()}, white});
    }
    if (size.height() > before.height()) {
        picture->marks.push_back(
            FillMark{{0, before.height(), size.width(), size.height()}, white});
    }
    changes = ChangeMap(size);
    for (const Mark& mark : picture->marks) {
        changes.Add(mark);
    }
    ForgetPixels();
}

void Surface::SetRatioOfAll(double ratio) {
    if (ratio == ratioOfAll) {
        return;
    }
    ratioOfAll = ratio;
    for (Surface* surface : surfaces) {
        surface->scale.ratio = ratio;
        surface->ForgetPixels();
    }
}
