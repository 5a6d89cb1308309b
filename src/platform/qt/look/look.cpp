#include "platform/qt/look/look.h"

#include <algorithm>

#include "platform/qt/look/font_warm_up.h"

QFont BarFont(double pixelSize, bool bold) {
    AwaitFonts();
    QFont font;
    font.setFamilies({"Liberation Sans", "Arial", "Noto Sans", "DejaVu Sans", "sans-serif"});
    font.setPixelSize(std::max(qRound(pixelSize), 1));
    font.setBold(bold);
    return font;
}

QFont FontFor(const QString& text, QFont font) {
    const bool plain = std::all_of(text.begin(), text.end(),
                                   [](QChar each) { return each >= ' ' && each <= '~'; });
    if (plain) {
        font.setStyleStrategy(QFont::NoFontMerging);
    }
    return font;
}
