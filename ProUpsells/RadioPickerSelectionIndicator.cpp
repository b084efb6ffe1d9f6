#include "ProUpsells/RadioPickerSelectionIndicator.hpp"

#include "Platform/SwiftUI/Modifiers/EffectModifiers.hpp"
#include "Platform/SwiftUI/Modifiers/LayoutModifiers.hpp"
#include "Platform/SwiftUI/Shapes/Shapes.hpp"
#include "Platform/SwiftUI/Views/Stacks.hpp"
#include "Platform/VelaUIKit/VelaColors.hpp"

namespace proupsells {

using namespace swiftui;

View RadioPickerSelectionIndicator::body(BuildContext&) const {
    return ZStack{.content =
                      {
                          Circle().fill(velauikit::velaBackground) | opacity(selected ? 0 : 1),
                          Circle().stroke(velauikit::velaBorder, selected ? 0 : 2) | opacity(selected ? 0 : 1),
                          Circle().stroke(selected ? 2 : 0) | scaleEffect(selected ? 1.0 : 0.9),
                          Circle().inset(3).fill() | opacity(selected ? 1 : 0),
                      }} |
           frame(24, 24);
}

} // namespace proupsells
