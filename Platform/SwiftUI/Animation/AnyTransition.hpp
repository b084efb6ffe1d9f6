// How views come and go.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "Platform/Geometry/Geometry.hpp"
#include "Platform/Motion/TimingCurve.hpp"
#include "Platform/SwiftUI/Layout/Alignment.hpp"
#include "Platform/SwiftUI/Tree/View.hpp"
#include "Platform/SwiftUI/Views/Shapes.hpp"

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
    // Clipped to a shape whose animatable data goes from the active one's to the identity one's. The modifier types have a `shape`
    // that is a Shape or turns into one.
    template <class Modifier>
    static AnyTransition modifier(const Modifier& active, const Modifier& identity) {
        return clip(Shape(active.shape), Shape(identity.shape));
    }
    static AnyTransition clip(const Shape& active, const Shape& identity);
    // Enters by one, leaves by the other.
    static AnyTransition asymmetric(const AnyTransition& insertion, const AnyTransition& removal);

    // Both at once.
    AnyTransition combined(const AnyTransition& other) const;
    // Moves by this animation, whatever is in force around the change, and even when nothing is.
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
        // Whether opacity is part of it, which stays when motion is to be reduced.
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

// How the view comes when it enters a tree that is already on screen, and goes when it leaves it: by the transition's own
// animation, else by the one of the change, else at once. While it goes it is painted in its old place and takes no touches.
inline TransitionModifier transition(AnyTransition transition) { return {std::move(transition)}; }

} // namespace proupsells::swiftui
