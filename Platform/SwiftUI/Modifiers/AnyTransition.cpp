#include "Platform/SwiftUI/Modifiers/AnyTransition.hpp"

#include <algorithm>

#include "Platform/SwiftUI/Animation/Animated.hpp"

namespace proupsells::swiftui {

namespace {

void fade(const AnyTransition::Part&, geometry::Size, double presence, TransitionEffect& effect) { effect.opacity *= presence; }

void grow(const AnyTransition::Part&, geometry::Size, double presence, TransitionEffect& effect) { effect.scale *= presence; }

void slide(const AnyTransition::Part& part, geometry::Size size, double presence, TransitionEffect& effect) {
    const double absence = 1 - presence;
    if (part.edge == Edge::leading) effect.offset.x -= size.width * absence;
    if (part.edge == Edge::trailing) effect.offset.x += size.width * absence;
    if (part.edge == Edge::top) effect.offset.y -= size.height * absence;
    if (part.edge == Edge::bottom) effect.offset.y += size.height * absence;
}

void reveal(const AnyTransition::Part& part, geometry::Size, double presence, TransitionEffect& effect) {
    effect.clip =
        part.identity->withAnimatableData(interpolated(part.active->animatableData(), part.identity->animatableData(), presence));
}

} // namespace

AnyTransition::AnyTransition() : AnyTransition(Ways{}) {}
AnyTransition::AnyTransition(Part part) : AnyTransition(Ways{{{part}, {}}, {{part}, {}}}) {}
AnyTransition::AnyTransition(Ways ways) : m_ways(std::make_shared<const Ways>(std::move(ways))) {}

AnyTransition AnyTransition::identity() {
    static const AnyTransition shared{Ways{}};
    return shared;
}
AnyTransition AnyTransition::opacity() {
    static const AnyTransition shared{Part{.effect = fade}};
    return shared;
}
AnyTransition AnyTransition::scale() {
    static const AnyTransition shared{Part{.effect = grow}};
    return shared;
}
AnyTransition AnyTransition::move(Edge edge) { return AnyTransition{Part{.effect = slide, .edge = edge}}; }
AnyTransition AnyTransition::clip(const Shape& active, const Shape& identity) {
    return AnyTransition{Part{.effect = reveal, .active = active, .identity = identity}};
}
AnyTransition AnyTransition::asymmetric(const AnyTransition& insertion, const AnyTransition& removal) {
    return AnyTransition{Ways{insertion.insertion(), removal.removal()}};
}

AnyTransition AnyTransition::combined(const AnyTransition& other) const {
    Ways ways = *m_ways;
    const auto join = [](Way& way, const Way& more) {
        way.parts.insert(way.parts.end(), more.parts.begin(), more.parts.end());
        if (!way.animation) way.animation = more.animation;
    };
    join(ways.insertion, other.insertion());
    join(ways.removal, other.removal());
    return AnyTransition{std::move(ways)};
}

AnyTransition AnyTransition::animation(const motion::Animation& animation) const {
    Ways ways = *m_ways;
    ways.insertion.animation = animation;
    ways.removal.animation = animation;
    return AnyTransition{std::move(ways)};
}

void AnyTransition::Way::apply(double presence, geometry::Size size, TransitionEffect& effect) const {
    for (const Part& part : parts) part.effect(part, size, presence, effect);
}

bool AnyTransition::Way::fades() const {
    return std::any_of(parts.begin(), parts.end(), [](const Part& part) { return part.effect == fade; });
}

} // namespace proupsells::swiftui
