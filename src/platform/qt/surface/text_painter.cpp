#include "platform/qt/surface/text_painter.h"

#include <QtCore/QCache>
#include <QtGui/QFontMetrics>
#include <algorithm>
#include <span>

#include "platform/drawing.h"
#include "platform/qt/look/fonts.h"
#include "platform/qt/surface/sized_font.h"
#include "platform/qt/surface/text_layout.h"

namespace {

struct StampKey {
    FontChoice font;
    int pixelSize;
    QRgb color;
    std::u16string text;
    bool operator==(const StampKey&) const = default;
};

size_t qHash(const StampKey& key, size_t seed) {
    return qHashMulti(seed, static_cast<int>(key.font.face), key.font.bold, key.pixelSize,
                      key.color, std::hash<std::u16string>()(key.text));
}

// A run of text drawn once on nothing, cut to its ink.
struct Stamp {
    QImage ink;
    QPoint offset;  // from the pen's start on the baseline to the ink's top-left corner
    int advance = 0;
};

bool HasInk(QRgb pixel) {
    return qAlpha(pixel) != 0;
}

QRect InkOf(const QImage& image) {
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        const std::span line(reinterpret_cast<const QRgb*>(image.constScanLine(y)),
                             static_cast<size_t>(image.width()));
        const auto first = std::find_if(line.begin(), line.end(), HasInk);
        if (first != line.end()) {
            const auto end = std::find_if(line.rbegin(), line.rend(), HasInk).base();
            ink |=
                QRect(static_cast<int>(first - line.begin()), y, static_cast<int>(end - first), 1);
        }
    }
    return ink;
}

Stamp MakeStamp(const SizedFont& sized, QRgb color, const std::u16string& text) {
    const QString string = ToQString(text);
    const QFont font = FontFor(string, sized.font);
    const QFontMetricsF metrics(font);
    const int margin = sized.pixelSize / 2 + 2;  // slanted and accented glyphs leave their cell
    const int advance = qRound(metrics.horizontalAdvance(string));
    const int height = sized.pixelSize * 2;
    QImage image(advance + 2 * margin, height + 2 * margin, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    const QPoint pen(margin, margin + sized.ascent);
    QPainter painter(&image);
    painter.setFont(font);
    painter.setPen(QColor::fromRgb(color));
    painter.drawText(pen, string);
    painter.end();
    const QRect ink = InkOf(image);
    return {image.copy(ink), ink.topLeft() - pen, advance};
}

const Stamp& FindStamp(const SizedFont& sized, const FontChoice& choice, QRgb color,
                       const std::u16string& text) {
    constexpr int mostPixels = 4 * 1024 * 1024;
    static QCache<StampKey, Stamp> stamps(mostPixels);
    const StampKey key{choice, sized.pixelSize, color, text};
    if (const Stamp* stamp = stamps.object(key)) {
        return *stamp;
    }
    auto* made = new Stamp(MakeStamp(sized, color, text));
    const auto pixels = static_cast<int>(made->ink.width() * made->ink.height());
    // A single line of text is always far below the whole cache, so the cache keeps it.
    stamps.insert(key, made, std::clamp(pixels, 1, mostPixels));
    return *made;
}

class LinePainter {
public:
    LinePainter(QPainter& to, const SizedFont& with, const TextMark& what, const QRect& inside)
        : painter(to), sized(with), mark(what), box(inside) {
    }

    void PaintLine(const std::u16string& text, int baseline) const {
        const Stamp& stamp = FindStamp(sized, mark.font, mark.color, CutBeyondBox(text));
        const int free = box.width() - stamp.advance;
        const int left = box.left() + (mark.format & DT_CENTER ? free / 2 : 0);
        if (mark.opaque) {
            const QRect cell(left, baseline - sized.solidAscent, stamp.advance, sized.solidPitch);
            painter.fillRect(cell & box, QColor::fromRgb(mark.background));
        }
        PaintInside(stamp, QPoint(left, baseline) + stamp.offset);
    }

private:
    // A hostile clue is one word of thousands of letters: at most twice of what can be seen is
    // rendered.
    std::u16string CutBeyondBox(const std::u16string& text) const {
        constexpr size_t usual = 64;
        if (text.size() <= usual) {
            return text;
        }
        std::u16string cut = text;
        const QFontMetricsF metrics(sized.font);
        while (cut.size() > usual) {
            const std::u16string half = cut.substr(0, cut.size() / 2);
            if (metrics.horizontalAdvance(ToQString(half)) < box.width()) {
                break;
            }
            cut = half;
        }
        return cut;
    }

    void PaintInside(const Stamp& stamp, QPoint corner) const {
        const QRect whole(corner, stamp.ink.size());
        const QRect visible = whole & box;
        if (!visible.isEmpty()) {
            painter.drawImage(visible.topLeft(), stamp.ink, visible.translated(-whole.topLeft()));
        }
    }

    QPainter& painter;
    const SizedFont& sized;
    const TextMark& mark;
    const QRect& box;
};

}  // namespace

void PaintText(QPainter& painter, const Scale& scale, const TextMark& mark) {
    const QRect box = scale.Area(mark.box);
    if (box.isEmpty()) {
        return;
    }
    const SizedFont& sized = FindSizedFont(mark.font, scale.ratio);
    const Layout layout = LayOut(sized, mark, box);
    const LinePainter lines(painter, sized, mark, box);
    int baseline = box.top() + layout.baseline;
    for (const std::u16string& line : layout.lines) {
        // Of a line that the box cuts, the tops of its letters alone would only be dirt.
        if (baseline - sized.capHeight / 2 > box.bottom()) {
            break;
        }
        lines.PaintLine(line, baseline);
        baseline += layout.pitch;
    }
}
