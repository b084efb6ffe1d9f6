// The module's own bundle: its images, clips and fonts.
#pragma once

#include "Platform/Foundation/Bundle.hpp"

namespace proupsells {

class ResourceBundleClass {
public:
    ResourceBundleClass() = delete;

    // Found at the first use, the same object ever after.
    static const foundation::Bundle& bundle();
};

} // namespace proupsells
