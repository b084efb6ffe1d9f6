#include "Platform/VelaUIKit/FlowLayout.hpp"

#include "Platform/VelaUIKit/FlowArrangement.hpp"

namespace proupsells::velauikit {

swiftui::Element* FlowLayout::makeElement() && {
    return swiftui::LayoutContainer<FlowArrangement>{.rule = {.spacing = spacing}, .content = content}.makeElement();
}

} // namespace proupsells::velauikit
