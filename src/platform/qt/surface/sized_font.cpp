#include "platform/qt/surface/sized_font.h"

#include <QtGui/QFontMetrics>
#include <cmath>
#include <vector>

#include "platform/qt/look/fonts.h"

namespace {

// What letters, accents left aside, and brackets reach above and below the baseline.
constexpr double solidAscentPerEm = 0.78;
constexpr double solidPitchPerEm = 1.0;

SizedFont MakeSizedFont(const FontChoice& choice, double ratio) {
    SizedFont sized;
    sized.font = ChosenFont(choice, ratio);
    sized.font.setKerning(false);
    // Sharp horizontals, and the spacing that the face was made with: readable at seven pixels.
    sized.font.setHintingPreference(QFont::PreferVerticalHinting);
    sized.pixelSize = sized.font.pixelSize();
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
