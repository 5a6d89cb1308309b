#include "platform/qt/surface/sized_font.h"

#include <QtGui/QFontMetrics>
#include <algorithm>
#include <cmath>
#include <vector>

#include "platform/qt/look/look.h"

namespace {

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

}  // namespace

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
