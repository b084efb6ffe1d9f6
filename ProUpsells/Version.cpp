#include "ProUpsells/Version.hpp"

// No code reads them, so the linker is told to keep them.
extern "C" {
PROUPSELLS_KEPT const double ProUpsellsVersionNumber = 1;
PROUPSELLS_KEPT const unsigned char ProUpsellsVersionString[] = "@(#)PROGRAM:ProUpsells  PROJECT:ProUpsells-1\n";
}
