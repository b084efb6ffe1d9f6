#include "Platform/System/Terminal.hpp"

namespace proupsells::system {

bool errorsGoToTerminal() { return false; }

} // namespace proupsells::system
