#include "Platform/VelaUIKit/Navigation.hpp"

#include "Platform/Foundation/Bundle.hpp"
#include "Platform/Host/NamedImage.hpp"
#include "Platform/LumoKit/ResourceBundle.hpp"
#include "Platform/VelaUIKit/VelaColors.hpp"

namespace proupsells::velauikit {

std::shared_ptr<uikit::UINavigationController> embedInNavController(const std::shared_ptr<uikit::UIViewController>& controller) {
    auto navigation = uikit::UINavigationController::create(controller);
    navigation->setBarBackgroundColor(velaBackground);
    navigation->setBarTintColor(velaLabel);
    return navigation;
}

uikit::UIBarButtonItem barButtonItem(BarButtonStyle style) {
    uikit::UIBarButtonItem item;
    if (style == BarButtonStyle::close) {
        item.image = host::namedImage("xmark", lumokit::resourceBundle());
        item.accessibilityLabel = foundation::localizedString("Close");
    }
    return item;
}

} // namespace proupsells::velauikit
