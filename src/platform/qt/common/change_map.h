// Which areas of a surface differ from what was rendered: a fingerprint for each tile of the
// marks that touch it, in their order.
#pragma once

#include <QtCore/QSize>
#include <cstdint>
#include <vector>

#include "platform/qt/common/marks.h"

class ChangeMap {
public:
    explicit ChangeMap(QSize size);

    // Forgets all marks; what was rendered stays known.
    void Restart();
    void Add(const Mark& mark);
    // All tiles that the area touches are rendered now.
    void Accept(const RECT& area);
    // Nothing is rendered any more.
    void Invalidate();

    // The changed tiles among those that the area touches, in logical pixels: few areas without
    // overlap; none when nothing changed.
    std::vector<RECT> ChangedAreas(const RECT& within) const;

private:
    bool Changed(int column, int row) const {
        return drawn[Index(column, row)] != rendered[Index(column, row)];
    }
    size_t Index(int column, int row) const {
        return static_cast<size_t>(row) * static_cast<size_t>(columns) +
               static_cast<size_t>(column);
    }
    // Columns and rows instead of pixels; right and bottom are exclusive.
    RECT TilesOf(const RECT& area) const;
    RECT ChangedBounds(const RECT& tiles) const;

    int columns;
    int rows;
    std::vector<std::uint64_t> drawn;
    std::vector<std::uint64_t> rendered;
};

// A mark can reach this far beyond its area, in logical pixels: lines have whole device pixels.
constexpr int markOverhang = 1;

bool Touches(const RECT& area, const RECT& mark);
