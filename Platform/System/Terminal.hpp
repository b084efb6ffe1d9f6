// Who reads what the program says.
#pragma once

#include "Platform/System/Compiler.hpp"

namespace proupsells::system {

// Whether standard error goes to a person's terminal, as opposed to a file or another program. False where nobody can say.
PROUPSELLS_EXPORT bool errorsGoToTerminal();

} // namespace proupsells::system
