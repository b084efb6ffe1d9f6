// The ordinary installation for an application with a Qt Quick scene.
#pragma once

#include "Platform/System/Compiler.hpp"

namespace proupsells::qtquick {

// qtbackend::install(), and QML's `import ProUpsells` has the type `Paywall`. To be called before the first QML file that imports
// it. Further calls do nothing.
PROUPSELLS_EXPORT void install();

} // namespace proupsells::qtquick
