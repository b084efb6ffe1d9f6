#include "Platform/SwiftUI/Views/ButtonStyle.hpp"

#include "Platform/SwiftUI/Modifiers/EffectModifiers.hpp"
#include "Platform/SwiftUI/Tree/BuildContext.hpp"

namespace proupsells::swiftui {
namespace {

class AutomaticButtonStyle final : public ButtonStyle {
public:
    View body(const ButtonStyleConfiguration& configuration, BuildContext& context) const override {
        const bool isDimmed = configuration.isPressed || !context.environment().isEnabled;
        return configuration.label | opacity(isDimmed ? 0.5 : 1);
    }
};

class PlainButtonStyle final : public ButtonStyle {
public:
    View body(const ButtonStyleConfiguration& configuration, BuildContext&) const override { return configuration.label; }
};

} // namespace

const std::shared_ptr<const ButtonStyle>& ButtonStyle::automatic() {
    static const std::shared_ptr<const ButtonStyle> style = std::make_shared<AutomaticButtonStyle>();
    return style;
}

const std::shared_ptr<const ButtonStyle>& ButtonStyle::plain() {
    static const std::shared_ptr<const ButtonStyle> style = std::make_shared<PlainButtonStyle>();
    return style;
}

} // namespace proupsells::swiftui
