#include "ProUpsells/Version.hpp"

// No code reads them, so the linker is told to keep them.
extern "C" {
[[gnu::used, gnu::retain]] const double ProUpsellsVersionNumber = 1;
[[gnu::used, gnu::retain]] const unsigned char ProUpsellsVersionString[] = "@(#)PROGRAM:ProUpsells  PROJECT:ProUpsells-1\n";
}
