// An archive that objects could be read from.
#pragma once

namespace proupsells::foundation {

// Nothing in this system is: every constructor that takes one stops the program.
class Coder {};

} // namespace proupsells::foundation
