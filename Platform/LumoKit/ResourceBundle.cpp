#include "Platform/LumoKit/ResourceBundle.hpp"

#include "Platform/Foundation/Resources.hpp"

namespace proupsells::lumokit {

const foundation::Bundle& resourceBundle() {
    static const foundation::Bundle bundle{foundation::requiredResource("VelaUIKit")};
    return bundle;
}

} // namespace proupsells::lumokit
