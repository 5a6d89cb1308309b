#include "platform/qt/common/marks.h"

namespace {

struct HiddenAreaOf {
    RECT operator()(const FillMark& mark) const {
        return mark.area;
    }
    // At a fractional ratio an outline can end before its last logical pixel does.
    RECT operator()(const FrameMark& mark) const {
        if (!mark.corner.isEmpty()) {
            return {};
        }
        return {mark.area.left, mark.area.top, mark.area.right - 1, mark.area.bottom - 1};
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

RECT WholeArea(const Picture& picture) {
    return {0, 0, picture.size.width(), picture.size.height()};
}

bool NeedsGround(const Picture& picture) {
    return picture.marks.empty() ||
           !Contains(HiddenArea(picture.marks.front()), WholeArea(picture));
}
