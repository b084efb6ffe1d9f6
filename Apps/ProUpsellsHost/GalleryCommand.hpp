// `proupsells gallery`: every screen in every configuration, as pictures in one page.
#pragma once

#include "Apps/ProUpsellsHost/CommandLine.hpp"

namespace proupsells::hostprogram {

// Returns the program's exit status: with another gallery to compare with, 1 where something has changed. Throws InputError, and a
// runtime_error with the line to say.
int makeGallery(const GalleryArguments& arguments);

} // namespace proupsells::hostprogram
