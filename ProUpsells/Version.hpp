// Which module this is, for tools that read it from the binary.
#pragma once

extern "C" {
extern const double ProUpsellsVersionNumber;
// Ends with a line feed.
extern const unsigned char ProUpsellsVersionString[];
}
