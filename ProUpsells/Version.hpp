// Which module this is, for tools that read it from the binary.
#pragma once

extern "C" {
[[gnu::visibility("default")]] extern const double ProUpsellsVersionNumber;
// Ends with a line feed.
[[gnu::visibility("default")]] extern const unsigned char ProUpsellsVersionString[];
}
