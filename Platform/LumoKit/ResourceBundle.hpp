// The design system's own bundle: its images.
#pragma once

#include "Platform/Foundation/Bundle.hpp"

namespace proupsells::lumokit {

// Found at the first use, the same object ever after.
const foundation::Bundle& resourceBundle();

} // namespace proupsells::lumokit
