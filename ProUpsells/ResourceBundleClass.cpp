#include "ProUpsells/ResourceBundleClass.hpp"

#include "Platform/Foundation/ResourceFolder.hpp"

namespace proupsells {

const foundation::Bundle& ResourceBundleClass::bundle() {
    static const foundation::Bundle bundle{
        foundation::resourceFolder("ProUpsells", PROUPSELLS_BUILT_RESOURCES, PROUPSELLS_INSTALLED_RESOURCES)};
    return bundle;
}

} // namespace proupsells
