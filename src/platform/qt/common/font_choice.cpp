#include "platform/qt/common/font_choice.h"

#include <string_view>

namespace {

// A positive height is that of a character cell, the face's ascent and descent together; a negative
// one is the em.
double EmOf(LONG height) {
    constexpr double cellPerEm = 1.117;
    return height < 0 ? -height : height / cellPerEm;
}

}  // namespace

FontChoice ToFontChoice(const LOGFONTW& description) {
    constexpr LONG semiBold = 600;
    FontChoice choice;
    const bool system = std::u16string_view(description.lfFaceName) == u"System";
    choice.face = system ? FontChoice::Face::System : FontChoice::Face::Small;
    choice.bold = description.lfWeight >= semiBold;
    if (description.lfHeight != 0) {
        choice.em = EmOf(description.lfHeight);
    }
    return choice;
}
