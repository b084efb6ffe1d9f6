// The ordinary installation for an application with a Qt Quick scene.
#pragma once

namespace proupsells::qtquick {

// qtbackend::install(), and QML's `import ProUpsells` has the type `Paywall`. To be called before the first QML file that imports
// it. Further calls do nothing.
void install();

} // namespace proupsells::qtquick
