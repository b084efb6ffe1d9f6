// A place of resources, named from outside.
#pragma once

#include "Platform/System/Compiler.hpp"

namespace proupsells::foundation {

// As a global object of a program: resources are looked for in `folder`, in UTF-8, too, after all other places. The package's build
// files make one for each program that is built against it.
class PROUPSELLS_EXPORT ResourcePlace {
public:
    // From now on, and for the rest of the program.
    explicit ResourcePlace(const char* folder);
};

} // namespace proupsells::foundation
