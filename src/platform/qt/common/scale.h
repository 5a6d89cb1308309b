// From logical to device pixels.
#pragma once

#include <QtCore/QRect>

#include "platform/types.h"

// At a fractional ratio neighbouring areas meet without a gap, and all lines have the same
// thickness.
struct Scale {
    double ratio = 1;

    int At(int logical) const {
        return qRound(logical * ratio);
    }
    int LineThickness() const {
        return qMax(1, static_cast<int>(ratio));
    }
    QRect Area(const RECT& area) const {
        return QRect(QPoint(At(area.left), At(area.top)),
                     QPoint(At(area.right) - 1, At(area.bottom) - 1));
    }
};
