#include "platform/qt/look/fonts.h"

#include <algorithm>

#include "platform/qt/look/font_warm_up.h"

QFont TextFont(double em, bool bold) {
    AwaitFonts();
    QFont font;
    font.setFamilies({"Liberation Sans", "Arial", "Noto Sans", "DejaVu Sans", "sans-serif"});
    font.setPixelSize(std::max(qRound(em), 1));
    font.setBold(bold);
    return font;
}

QFont ChosenFont(const FontChoice& choice, double ratio) {
    QFont font = TextFont(choice.em * ratio, choice.bold);
    if (choice.face == FontChoice::Face::Small) {
        // Its digits can be told apart at seven pixels.
        font.setFamilies(QStringList("DejaVu Sans") + font.families());
    }
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
