#include "Platform/LumoKit/ResourceBundle.hpp"

#include "Platform/Foundation/ResourceFolder.hpp"

namespace proupsells::lumokit {

const foundation::Bundle& resourceBundle() {
    static const foundation::Bundle bundle{
        foundation::resourceFolder("VelaUIKit", VELAUIKIT_BUILT_RESOURCES, VELAUIKIT_INSTALLED_RESOURCES)};
    return bundle;
}

} // namespace proupsells::lumokit
