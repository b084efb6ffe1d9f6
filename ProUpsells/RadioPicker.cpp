#include "ProUpsells/RadioPicker.hpp"

#include "Platform/Foundation/Bundle.hpp"
#include "Platform/SwiftUI/Modifiers/AccessibilityModifiers.hpp"
#include "Platform/SwiftUI/Views/ForEach.hpp"
#include "Platform/SwiftUI/Views/Stacks.hpp"
#include "ProUpsells/RadioPickerButton.hpp"

namespace proupsells {

using namespace swiftui;

View RadioPicker::body(BuildContext&) const {
    const std::string selectedId = selectedItem.get();
    return VStack{.spacing = 16,
                  .content = ForEach(
                      items, [](const RadioPickerItem& item) { return Key(item.id); },
                      [&](const RadioPickerItem& item) {
                          return RadioPickerButton{.item = item,
                                                   .selected = item.id == selectedId,
                                                   .action = [binding = selectedItem, id = item.id] { binding.set(id); }};
                      })} |
           accessibilityRole(accessibility::Role::radioGroup,
                             foundation::localizedString("Plans", "Spoken name of the list of plans to choose from"));
}

} // namespace proupsells
