#include "ProUpsells/Version.hpp"

extern "C" {
const double ProUpsellsVersionNumber = 1;
const unsigned char ProUpsellsVersionString[] = "@(#)PROGRAM:ProUpsells  PROJECT:ProUpsells-1\n";
}
