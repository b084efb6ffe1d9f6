#include "ProUpsells/ResourceBundleClass.hpp"

#include "Platform/Foundation/Resources.hpp"

namespace proupsells {

const foundation::Bundle& ResourceBundleClass::bundle() {
    static const foundation::Bundle bundle{foundation::requiredResource("ProUpsells")};
    return bundle;
}

} // namespace proupsells
