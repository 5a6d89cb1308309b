// Which areas of a surface differ from what was rendered: a fingerprint for each tile of the
// marks that touch it, in their order.
#pragma once

#include <QtCore/QSize>
#include <cstdint>
#include <vector>

#include "platform/qt/marks.h"

class ChangeMap {
public:
    explicit ChangeMap(QSize size);

    // Forgets all marks; what was rendered stays known.
    void Restart();
    void Add(const Mark& mark);
    // Everything is rendered now.
    void Accept();
    // Nothing is rendered any more.
    void Invalidate();

    // The changed areas in logical pixels, few and without overlap; empty when nothing changed.
    std::vector<RECT> ChangedAreas() const;

private:
    bool Changed(int column, int row) const {
        return drawn[Index(column, row)] != rendered[Index(column, row)];
    }
    size_t Index(int column, int row) const {
        return static_cast<size_t>(row) * static_cast<size_t>(columns) +
               static_cast<size_t>(column);
    }
    RECT ChangedBounds() const;

    QSize size;
    int columns;
    int rows;
    std::vector<std::uint64_t> drawn;
    std::vector<std::uint64_t> rendered;
};

// A mark can reach this far beyond its area, in logical pixels: lines have whole device pixels.
constexpr int markOverhang = 1;

bool Touches(const RECT& area, const RECT& mark);
