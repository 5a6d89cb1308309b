#include "platform/qt/common/change_map.h"

#include <algorithm>
#include <bit>
#include <functional>

namespace {

// About the size of a cell, so that typing a letter changes few tiles.
constexpr int tileSize = 24;

constexpr std::uint64_t emptyTile = 1;
constexpr std::uint64_t unknownTile = 0;

class Fingerprint {
public:
    void Add(std::uint64_t value) {
        hash = (hash ^ value) * 0x9E3779B97F4A7C15u;
        hash ^= hash >> 29;
    }
    void Add(const RECT& area) {
        Add(Pair(area.left, area.top));
        Add(Pair(area.right, area.bottom));
    }
    void operator()(const FillMark& mark) {
        Add(mark.area);
        Add(mark.color);
    }
    void operator()(const FrameMark& mark) {
        Add(mark.area);
        Add(static_cast<std::uint64_t>(mark.outline) << 32 | mark.fill);
        Add(Pair(mark.corner.width(), mark.corner.height()));
    }
    void operator()(const LineMark& mark) {
        Add(mark.area);
        Add(mark.color);
    }
    void operator()(const TextMark& mark) {
        Add(mark.box);
        Add(std::hash<std::u16string>()(mark.text));
        Add(static_cast<std::uint64_t>(mark.color) << 32 | mark.background);
        Add(std::bit_cast<std::uint64_t>(mark.font.em));
        Add(static_cast<std::uint64_t>(mark.format) << 3 |
            static_cast<std::uint64_t>(mark.font.face) << 2 | mark.font.bold << 1 | mark.opaque);
    }
    void operator()(const ArtMark& mark) {
        Add(mark.area);
        Add(std::hash<std::string_view>()(mark.file));
    }
    // No two copies count as the same, since the pixels come from elsewhere.
    void operator()(const CopyMark& mark) {
        static std::uint64_t copies = 0;
        Add(mark.area);
        Add(++copies);
    }

    std::uint64_t Value() const {
        return hash;
    }

private:
    static std::uint64_t Pair(int one, int other) {
        return static_cast<std::uint64_t>(static_cast<std::uint32_t>(one)) << 32 |
               static_cast<std::uint32_t>(other);
    }

    std::uint64_t hash = 0x243F6A8885A308D3u;
};

std::uint64_t Combine(std::uint64_t tile, std::uint64_t mark) {
    return ((tile << 7 | tile >> 57) ^ mark) * 0xD6E8FEB86659FD93u;
}

int TilesFor(int length) {
    return (length + tileSize - 1) / tileSize;
}

int TileAt(int position, int count) {
    return std::clamp(position / tileSize, 0, count - 1);
}

RECT TileArea(int left, int top, int right, int bottom) {
    return {left * tileSize, top * tileSize, right * tileSize, bottom * tileSize};
}

// A run of tiles right below an area of the same width makes it higher.
void AddRun(std::vector<RECT>& areas, const RECT& run) {
    const auto above = std::find_if(areas.begin(), areas.end(), [&](const RECT& area) {
        return area.bottom == run.top && area.left == run.left && area.right == run.right;
    });
    if (above != areas.end()) {
        above->bottom = run.bottom;
    } else {
        areas.push_back(run);
    }
}

}  // namespace

bool Touches(const RECT& area, const RECT& mark) {
    return mark.left - markOverhang < area.right && mark.right + markOverhang > area.left &&
           mark.top - markOverhang < area.bottom && mark.bottom + markOverhang > area.top;
}

ChangeMap::ChangeMap(QSize size)
    : columns(TilesFor(size.width())),
      rows(TilesFor(size.height())),
      drawn(static_cast<size_t>(columns * rows), emptyTile),
      rendered(drawn.size(), unknownTile) {
}

void ChangeMap::Restart() {
    std::fill(drawn.begin(), drawn.end(), emptyTile);
}

void ChangeMap::Add(const Mark& mark) {
    Fingerprint fingerprint;
    std::visit([&](const auto& any) { fingerprint(any); }, mark);
    RECT area = TouchedArea(mark);
    area = {area.left - markOverhang, area.top - markOverhang, area.right + markOverhang,
            area.bottom + markOverhang};
    const RECT tiles = TilesOf(area);
    for (int row = tiles.top; row < tiles.bottom; ++row) {
        for (int column = tiles.left; column < tiles.right; ++column) {
            std::uint64_t& tile = drawn[Index(column, row)];
            tile = Combine(tile, fingerprint.Value());
        }
    }
}

void ChangeMap::Accept(const RECT& area) {
    const RECT tiles = TilesOf(area);
    for (int row = tiles.top; row < tiles.bottom; ++row) {
        const auto first = static_cast<std::ptrdiff_t>(Index(tiles.left, row));
        std::copy_n(drawn.begin() + first, tiles.right - tiles.left, rendered.begin() + first);
    }
}

void ChangeMap::Invalidate() {
    std::fill(rendered.begin(), rendered.end(), unknownTile);
}

RECT ChangeMap::TilesOf(const RECT& area) const {
    return {TileAt(area.left, columns), TileAt(area.top, rows), TileAt(area.right - 1, columns) + 1,
            TileAt(area.bottom - 1, rows) + 1};
}

std::vector<RECT> ChangeMap::ChangedAreas(const RECT& within) const {
    // Every area costs a walk over all marks.
    constexpr size_t mostAreas = 12;
    const RECT tiles = TilesOf(within);
    std::vector<RECT> areas;
    for (int row = tiles.top; row < tiles.bottom; ++row) {
        for (int column = tiles.left; column < tiles.right; ++column) {
            if (!Changed(column, row)) {
                continue;
            }
            const int first = column;
            while (column < tiles.right && Changed(column, row)) {
                ++column;
            }
            AddRun(areas, TileArea(first, row, column, row + 1));
        }
    }
    return areas.size() > mostAreas ? std::vector<RECT>{ChangedBounds(tiles)} : areas;
}

RECT ChangeMap::ChangedBounds(const RECT& tiles) const {
    RECT bounds{tiles.right, tiles.bottom, tiles.left, tiles.top};
    for (int row = tiles.top; row < tiles.bottom; ++row) {
        for (int column = tiles.left; column < tiles.right; ++column) {
            if (Changed(column, row)) {
                bounds = {std::min(bounds.left, column), std::min(bounds.top, row),
                          std::max(bounds.right, column + 1), std::max(bounds.bottom, row + 1)};
            }
        }
    }
    return TileArea(bounds.left, bounds.top, bounds.right, bounds.bottom);
}
