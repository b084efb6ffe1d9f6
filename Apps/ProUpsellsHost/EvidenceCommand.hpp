// `proupsells evidence`: what a customer was shown and agreed to, as one file.
#pragma once

#include "Apps/ProUpsellsHost/CommandLine.hpp"

namespace proupsells::hostprogram {

// Plays the scenario, writes the document, and prints its digest. Returns the exit status. Throws InputError.
int writeEvidence(const EvidenceArguments& arguments);

} // namespace proupsells::hostprogram
