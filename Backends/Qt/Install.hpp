// The ordinary installation for an application that runs Qt's event loop.
#pragma once

#include "Platform/System/Compiler.hpp"

namespace proupsells::qtbackend {

// standard::install(), and the main run loop's work is done from Qt's event loop until the application object goes. The host's own
// application object stays the host's; stops the program when there is none yet. A language of the system that Qt knows becomes the
// current locale, unless the host has set one before. Further calls do nothing. The windows, widgets and items of this package call
// it themselves.
PROUPSELLS_EXPORT void install();

} // namespace proupsells::qtbackend
