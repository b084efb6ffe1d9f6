#include "Platform/LumoKit/Icon.hpp"

#include "Platform/Host/NamedImage.hpp"
#include "Platform/LumoKit/ResourceBundle.hpp"

namespace proupsells::lumokit {

const graphics::ImageRef& Icon::diamond24() {
    static const graphics::ImageRef image = host::namedImage("diamond24", resourceBundle(), graphics::RenderingMode::tinted);
    return image;
}

const graphics::ImageRef& SystemSymbol::chevronRight() {
    static const graphics::ImageRef image = host::namedImage("chevron.right", resourceBundle(), graphics::RenderingMode::tinted);
    return image;
}

} // namespace proupsells::lumokit
