// What the store page shows: eight shelves, each a strip of the same tile many times over with a title and a subtitle below.
#pragma once

#include <array>

namespace peers::store {

// Lengths are points.
constexpr int width = 375;
constexpr int viewportHeight = 736;
constexpr int barHeight = 64;
constexpr int tileCount = 21;
constexpr int tileSpacing = 16;
constexpr int edge = 16;
// By how much a strip moves when the strips drift.
constexpr int driftStep = 5;

struct Shelf {
    int height;
    // Empty space below the shelf.
    int inset;
    double tileAspect;
    const char* title;
    const char* subtitle;

    constexpr int tileHeight() const {
        constexpr int titleBlock = 103;
        return height - titleBlock - edge;
    }
    constexpr int tileWidth() const { return int(tileHeight() * tileAspect); }
    constexpr int stripWidth() const { return 2 * edge + tileCount * tileWidth() + (tileCount - 1) * tileSpacing; }
    constexpr int fullHeight() const { return height + inset; }
};

inline constexpr std::array<Shelf, 8> shelves{{
    {220, 0, 1.5, "It's never been easier to look professional", "All the templates. All the fonts. Graphics galore."},
    {315, 25, 0.8, "Upload brand assets", "Add your logos, fonts and color palettes to use within your projects."},
    {290, 40, 0.75, "Get full access to all templates", "Design on the go with professionally designed templates, updated daily."},
    {336, 50, 0.8, "Print with PDF export", "Export PDFs for high-quality printing of posters, cards, stationery and more."},
    {236, 50, 1.2, "Speedy layout collections", "Create consistent designs in seconds with pre-designed themed layouts."},
    {331, 75, 2.0, "Create with premium fonts and graphics", "Unlimited access to 60k+ exclusive graphics and 500+ curated fonts."},
    {280, 40, 1.0, "Design with editable shapes", "Pro users have access to editable vector shapes to use within projects."},
    {395, 25, 0.6, "Get inspired with videos and images",
     "Exclusive access to stock videos and libraries with millions of images."},
}};

constexpr int contentHeight() {
    int height = 0;
    for (const Shelf& shelf : shelves) height += shelf.fullHeight();
    return height;
}

// Where the strip of the shelf with this number begins after some drifts, relative to the page. Every other strip comes from its
// end.
constexpr int stripStart(int shelf, int drifts) {
    const int overhang = width - shelves[shelf].stripWidth();
    const int fromEnd = overhang + driftStep * drifts;
    const int fromStart = -driftStep * drifts;
    return edge + (shelf % 2 ? (fromEnd < 0 ? fromEnd : 0) : (fromStart > overhang ? fromStart : overhang));
}

} // namespace peers::store
