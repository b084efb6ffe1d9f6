// `proupsells texts`: every text of the screens, for translators.
#pragma once

#include "Apps/ProUpsellsHost/CommandLine.hpp"

namespace proupsells::hostprogram {

// Prints a file in the format to standard output.
void printTexts(TextsFormat format);

} // namespace proupsells::hostprogram
