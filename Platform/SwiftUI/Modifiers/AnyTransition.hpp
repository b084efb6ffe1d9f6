// How views come and go.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "Platform/Geometry/Geometry.hpp"
#include "Platform/Motion/TimingCurve.hpp"
#include "Platform/SwiftUI/Shapes/Shapes.hpp"
#include "Platform/SwiftUI/Tree/Alignment.hpp"
#include "Platform/SwiftUI/Tree/View.hpp"

namespace proupsells::swiftui {

// What a view that is only partly there looks like.
struct TransitionEffect {
    double opacity = 1;
    double scale = 1;
    geometry::Point offset; // x follows the layout direction
    std::optional<Shape> clip;
};

// What happens between absent and present. Has an effect for each `presence` from 0 (absent) to 1 (present).
class AnyTransition {
public:
    struct Part;
    using Effect = void (*)(const Part& part, geometry::Size size, double presence, TransitionEffect& effect);

    // Comes and goes at once.
    static AnyTransition identity();
    static AnyTransition opacity();
    static AnyTransition scale();
    // From and to the edge, by the view's own size.
    static AnyTransition move(Edge edge);
    // Cut to a shape. Its animatable data goes from that of the active modifier's shape (absent) to that of the identity
    // modifier's (present). Both modifiers have a member `shape`.
    template <class Modifier>
    static AnyTransition modifier(const Modifier& active, const Modifier& identity) {
        return clip(Shape(active.shape), Shape(identity.shape));
    }
    static AnyTransition clip(const Shape& active, const Shape& identity);
    // Enters by one, leaves by the other.
    static AnyTransition asymmetric(const AnyTransition& insertion, const AnyTransition& removal);

    // Both at once.
    AnyTransition combined(const AnyTransition& other) const;
    // Always uses this animation, also when the change around it has another one or none.
    AnyTransition animation(const motion::Animation& animation) const;

    struct Part {
        Effect effect = nullptr;
        std::optional<Shape> active;
        std::optional<Shape> identity;
        Edge edge = Edge::none;
    };
    // One way: in or out.
    struct Way {
        std::vector<Part> parts;
        std::optional<motion::Animation> animation;

        void apply(double presence, geometry::Size size, TransitionEffect& effect) const;
        // Whether the part only fades. Such parts stay when motion is to be reduced.
        bool fades() const;
    };
    const Way& insertion() const { return m_ways->insertion; }
    const Way& removal() const { return m_ways->removal; }

private:
    struct Ways {
        Way insertion;
        Way removal;
    };

    AnyTransition();
    explicit AnyTransition(Part part);
    explicit AnyTransition(Ways ways);

    std::shared_ptr<const Ways> m_ways;
};

struct TransitionModifier {
    AnyTransition transition;

    View modified(View content) &&;
};

// How the view comes into a tree that is on screen, and how it goes. It does so by the transition's own animation, otherwise by
// that of the change, otherwise at once. While it goes it is painted in its old place and takes no touches.
inline TransitionModifier transition(AnyTransition transition) { return {std::move(transition)}; }

} // namespace proupsells::swiftui
