#include "platform/qt/marks.h"

namespace {

struct HiddenAreaOf {
    RECT operator()(const FillMark& mark) const {
        return mark.area;
    }
    RECT operator()(const FrameMark& mark) const {
        return mark.corner.isEmpty() ? mark.area : RECT{};
    }
    RECT operator()(const LineMark&) const {
        return {};
    }
    RECT operator()(const TextMark&) const {
        return {};
    }
    RECT operator()(const ArtMark&) const {
        return {};
    }
    RECT operator()(const CopyMark& mark) const {
        return mark.area;
    }
};

struct TouchedAreaOf {
    const RECT& operator()(const TextMark& mark) const {
        return mark.box;
    }
    template <typename AnyMark>
    const RECT& operator()(const AnyMark& mark) const {
        return mark.area;
    }
};

}  // namespace

RECT HiddenArea(const Mark& mark) {
    return std::visit(HiddenAreaOf{}, mark);
}

const RECT& TouchedArea(const Mark& mark) {
    return std::visit(TouchedAreaOf{}, mark);
}
