// Finds pixels that are on the screen already, only somewhere else: a page that slides, a strip that drifts, a list that scrolls.
// To copy them takes half the memory traffic that it takes to paint a picture again.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "Backends/Raster/PixelRect.hpp"
#include "Platform/Graphics/DisplayList.hpp"

namespace proupsells::rasterbackend {

// Whole pixels to the right and down.
struct PixelOffset {
    int x = 0;
    int y = 0;

    bool operator==(const PixelOffset&) const = default;
};

// Pixels that become those which lie at `to` less the offset.
struct MovedPixels {
    PixelRect to;
    PixelOffset by;

    PixelRect from() const { return to.moved(-by.x, -by.y); }
    bool operator==(const MovedPixels&) const = default;
};

// Two commands of equal looks, one of them moved by whole pixels, paint equal pixels; so do two lists of them.
class MoveFinder {
public:
    // Of two lists of which the second is shown after the first, at `scale` pixels a point: what of `damage`, a part of the window,
    // shows what another part of it has shown before. Empty where that is little. What of the damage has to be painted is then in
    // repainted().
    MovedPixels find(const graphics::DisplayList& before, const graphics::DisplayList& after, double scale,
                     const PixelRect& damage);
    // They may overlap. Good until the next call.
    std::span<const PixelRect> repainted() const { return m_repainted; }

private:
    // A command and the pixels that it may touch in a part of the window.
    struct Placed {
        const graphics::Command* command = nullptr;
        PixelRect area;
    };

    PixelOffset offsetOfLargestPicture(const PixelRect& damage) const;
    void place(const graphics::DisplayList& list, PixelOffset by, const PixelRect& part, std::vector<Placed>& placed) const;
    void matchInOrder();
    bool isMoved(const Placed& before, const Placed& after) const;
    bool looksTheSame(const graphics::Command& before, const graphics::Command& after) const;
    bool isAtOffset(const graphics::Command& before, const graphics::Command& after, const PixelRect& area) const;
    bool hasClipOfBefore(const graphics::Command& before, const graphics::Command& after) const;
    void repaintCorners(const graphics::Command& clipped, PixelOffset by, const PixelRect& area);
    void repaint(const PixelRect& rect);
    bool isWorthIt(const PixelRect& damage) const;
    PixelRect pixels(const geometry::Rect& rect, PixelOffset by = {}) const;

    const graphics::DisplayList* m_before = nullptr;
    const graphics::DisplayList* m_after = nullptr;
    double m_scale = 1;
    PixelOffset m_offset;
    std::vector<Placed> m_placedBefore, m_placedAfter; // the former ones as if they had moved
    std::vector<PixelRect> m_repainted;
};

} // namespace proupsells::rasterbackend
