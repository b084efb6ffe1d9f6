#include "Platform/SwiftUI/Animation/PageFade.hpp"

#include <algorithm>

namespace proupsells::swiftui {

void PageFade::begin(int pageCount, int from, int to, const motion::Animation& animation, double now_s) {
    const bool goesOn = isFadingAt(now_s) && int(m_shares.size()) == pageCount;
    std::vector<Animated<double>> shares;
    for (int page = 0; page < pageCount; ++page) {
        const double shown = goesOn ? shareOf(page, now_s) : page == from ? 1 : 0;
        shares.emplace_back(shown).set(page == to ? 1 : 0, &animation, now_s);
    }
    m_shares = std::move(shares);
    m_target = to;
}

double PageFade::end_s() const {
    double end_s = -1e300;
    for (const Animated<double>& share : m_shares) end_s = std::max(end_s, share.end_s());
    return end_s;
}

double PageFade::shareOf(int page, double now_s) const { return m_shares[std::size_t(page)].valueAt(now_s); }

bool PageFade::includes(int page, double now_s) const {
    return isFadingAt(now_s) && page < int(m_shares.size()) && (page == m_target || shareOf(page, now_s) > 0);
}

// What lies over a page hides as much of it as its own share asks for, so that what is left is the page's share.
double PageFade::opacityOf(int page, double now_s) const {
    double soFar = 0;
    for (int other = 0; other <= page; ++other) soFar += shareOf(other, now_s);
    return soFar > 0 ? shareOf(page, now_s) / soFar : 0;
}

} // namespace proupsells::swiftui
