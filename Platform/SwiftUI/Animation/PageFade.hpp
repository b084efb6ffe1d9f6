// How pages that lie on each other are mixed while one takes the place of another.
#pragma once

#include <vector>

#include "Platform/SwiftUI/Animation/Animated.hpp"

namespace proupsells::swiftui {

// A function of time, like everything that moves. Each page has a share of the picture, and the shares add up to 1. Exact for pages
// that hide what is behind them.
class PageFade {
public:
    // Fades from `from` to `to`. A fade that is under way is left where it is, and goes on from there.
    void begin(int pageCount, int from, int to, const motion::Animation& animation, double now_s);
    // Ends at once.
    void end() { m_shares.clear(); }

    bool isFadingAt(double now_s) const { return now_s < end_s(); }
    // In the past where nothing fades.
    double end_s() const;
    // Whether the page takes part in the fade that is under way.
    bool includes(int page, double now_s) const;
    // With which each of the pages is to be painted over those before it.
    double opacityOf(int page, double now_s) const;

private:
    double shareOf(int page, double now_s) const;

    std::vector<Animated<double>> m_shares; // empty: nothing fades
    int m_target = 0;
};

} // namespace proupsells::swiftui
