// Which page of several is shown, and where between two of them one is on the way.
#pragma once

#include <optional>

#include "Platform/Motion/ScrollMotion.hpp"
#include "Platform/SwiftUI/Animation/Animated.hpp"

namespace proupsells::swiftui {

// Positions count pages from 0; 1.5 is half-way between the second and the third. Lengths are in points, times the run loop's.
class PagePosition {
public:
    // A position past the last page comes back to it at once. `pageLength` is that of one page.
    void setPages(int count, double pageLength, double now_s);
    int count() const { return m_count; }

    double positionAt(double now_s) const;
    // The page at rest, or the one that it is on its way to.
    int target() const { return m_target; }
    bool isTracking() const { return m_isTracking; }
    bool isMovingAt(double now_s) const { return !m_isTracking && now_s < end_s(); }
    // When it comes to rest by itself; in the past where nothing moves.
    double end_s() const;

    // To a page by an animation, or at once. The pages between pass by. A finger keeps what it holds.
    void turnTo(int page, const motion::Animation* animation, double now_s);
    // The finger takes hold where the pages are shown. `finger` grows towards the first page.
    void beginTracking(double finger, double now_s);
    void track(double finger, double now_s);
    // The finger lifts: the page where it would come to rest. settle goes there.
    int pageForLift(double now_s) const;
    void settle(int page, double now_s);

private:
    struct Settling {
        motion::Deceleration path; // in points
        double start_s;
    };

    motion::ScrollRange range() const { return {0, m_count > 1 ? (m_count - 1) * m_pageLength : 0}; }
    int existing(int page) const;

    int m_count = 0;
    double m_pageLength = 0;
    int m_target = 0;
    Animated<double> m_slide{0};
    std::optional<Settling> m_settling;
    bool m_isTracking = false;
    double m_held = 0; // the position under the finger
    double m_fingerAtStart = 0;
    double m_draggedAtStart = 0;
    motion::VelocityTracker m_speed; // of the pages, in points
};

} // namespace proupsells::swiftui
