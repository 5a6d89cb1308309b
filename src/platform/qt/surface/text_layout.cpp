#include "platform/qt/surface/text_layout.h"

#include <QtCore/QCache>
#include <QtGui/QFontMetrics>
#include <algorithm>

#include "platform/drawing.h"
#include "platform/qt/look/fonts.h"

namespace {

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

}  // namespace

QString ToQString(const std::u16string& text) {
    return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
}

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
