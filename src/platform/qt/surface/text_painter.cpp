#include "platform/qt/surface/text_painter.h"

#include <QtCore/QCache>
#include <QtGui/QFont>
#include <QtGui/QFontMetrics>
#include <algorithm>
#include <cmath>
#include <span>

#include "platform/drawing.h"
#include "platform/qt/look/look.h"

namespace {

// A face sized for one ratio, with its vertical measures in device pixels.
struct SizedFont {
    QFont font;
    int pixelSize = 0;
    int ascent = 0;
    int capHeight = 0;
    // Word-broken text is set solid, without leading, so that two lines of a clue fit the bar.
    int solidAscent = 0;
    int solidPitch = 0;
};

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

struct LinesKey {
    FontChoice font;
    int pixelSize;
    int width;
    std::u16string text;
    bool operator==(const LinesKey&) const = default;
};

size_t qHash(const LinesKey& key, size_t seed) {
    return qHashMulti(seed, static_cast<int>(key.font.face), key.font.bold, key.pixelSize,
                      key.width, std::hash<std::u16string>()(key.text));
}

using Lines = std::vector<std::u16string>;

QString ToQString(const std::u16string& text) {
    return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
}

QFont MakeFont(const FontChoice& choice, int pixelSize) {
    QFont font = BarFont(pixelSize, choice.bold);
    if (choice.face == FontChoice::Face::Small) {
        // Its digits can be told apart at seven pixels.
        font.setFamilies(QStringList("DejaVu Sans") + font.families());
    }
    font.setKerning(false);
    // Sharp horizontals, and the spacing that the face was made with: readable at seven pixels.
    font.setHintingPreference(QFont::PreferVerticalHinting);
    return font;
}

// How high a character cell is for its em: the face's ascent and descent together.
constexpr double cellPerEm = 1.117;
// What letters, accents left aside, and brackets reach above and below the baseline.
constexpr double solidAscentPerEm = 0.78;
constexpr double solidPitchPerEm = 1.0;

SizedFont MakeSizedFont(const FontChoice& choice, double ratio) {
    const double em = choice.height < 0 ? -choice.height : choice.height / cellPerEm;
    SizedFont sized;
    sized.pixelSize = std::max(1, qRound(em * ratio));
    sized.font = MakeFont(choice, sized.pixelSize);
    const QFontMetricsF metrics(FontFor({}, sized.font));
    // Rounded up, as a whole pixel row belongs to the leading: small numbers keep off the outline.
    sized.ascent = static_cast<int>(std::ceil(metrics.ascent()));
    sized.capHeight = qRound(metrics.capHeight());
    sized.solidAscent = static_cast<int>(std::ceil(sized.pixelSize * solidAscentPerEm));
    sized.solidPitch = static_cast<int>(std::ceil(sized.pixelSize * solidPitchPerEm));
    return sized;
}

// A board asks for the same two fonts for every letter.
const SizedFont& FindSizedFont(const FontChoice& choice, double ratio) {
    struct Entry {
        FontChoice choice;
        double ratio;
        SizedFont sized;
    };
    constexpr size_t mostKept = 8;
    static std::vector<Entry> entries;
    for (const Entry& entry : entries) {
        if (entry.choice == choice && entry.ratio == ratio) {
            return entry.sized;
        }
    }
    if (entries.size() >= mostKept) {
        entries.erase(entries.begin());
    }
    entries.push_back({choice, ratio, MakeSizedFont(choice, ratio)});
    return entries.back().sized;
}

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

bool IsControl(char16_t character) {
    return character < u' ' || (character >= 0x7F && character < 0xA0);
}

// Puzzle texts hold stray control bytes; a line end counts, everything else is a space.
Lines SplitLines(const std::u16string& text) {
    Lines lines(1);
    for (char16_t character : text) {
        if (character == u'\n') {
            lines.emplace_back();
        } else if (character != u'\r') {
            lines.back().push_back(IsControl(character) ? u' ' : character);
        }
    }
    return lines;
}

std::vector<std::u16string> SplitWords(const std::u16string& line) {
    std::vector<std::u16string> words;
    size_t start = 0;
    while (start < line.size()) {
        const size_t end = std::min(line.find(u' ', start), line.size());
        words.push_back(line.substr(start, end - start));
        start = end + 1;
    }
    return words;
}

void BreakLine(const std::u16string& line, const QFontMetricsF& metrics, int width, Lines& lines) {
    std::u16string current;
    bool first = true;
    for (const std::u16string& word : SplitWords(line)) {
        const std::u16string longer = first ? word : current + u' ' + word;
        if (!first && metrics.horizontalAdvance(ToQString(longer)) > width) {
            lines.push_back(current);
            current = word;
        } else {
            current = longer;
        }
        first = false;
    }
    lines.push_back(current);
}

Lines BreakLines(const SizedFont& sized, const std::u16string& text, int width) {
    const QFontMetricsF metrics(FontFor(ToQString(text), sized.font));
    Lines broken;
    for (const std::u16string& line : SplitLines(text)) {
        BreakLine(line, metrics, width, broken);
    }
    return broken;
}

const Lines& FindBrokenLines(const SizedFont& sized, const TextMark& mark, int width) {
    static QCache<LinesKey, Lines> layouts(64);
    const LinesKey key{mark.font, sized.pixelSize, width, mark.text};
    if (const Lines* lines = layouts.object(key)) {
        return *lines;
    }
    auto* made = new Lines(BreakLines(sized, mark.text, width));
    layouts.insert(key, made);
    return *made;
}

struct Layout {
    Lines lines;
    int baseline = 0;  // of the first line
    int pitch = 0;
};

Layout LayOut(const SizedFont& sized, const TextMark& mark, const QRect& box) {
    Layout layout;
    if (mark.format & DT_WORDBREAK) {
        layout = {FindBrokenLines(sized, mark, box.width()), sized.solidAscent, sized.solidPitch};
    } else if (mark.format & DT_SINGLELINE) {
        layout = {{mark.text}, sized.ascent, sized.solidPitch};
        std::replace_if(layout.lines[0].begin(), layout.lines[0].end(), IsControl, u' ');
    } else {
        layout = {SplitLines(mark.text), sized.ascent, sized.solidPitch};
    }
    if (mark.format & DT_VCENTER) {
        // Capital letters sit in the middle, as the eye expects of a grid.
        layout.baseline = (box.height() - sized.capHeight) / 2 + sized.capHeight;
    }
    return layout;
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
