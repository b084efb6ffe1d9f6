// `proupsells show`: the screens in a real window.
#pragma once

#include <filesystem>
#include <optional>

#include "Apps/ProUpsellsHost/Device.hpp"

namespace proupsells::hostprogram {

enum class StartScreen { paywall, comparison, store };

// Shows the offers of a file, or the sample ones, until the window closes. Returns the exit status: 0, or 3 where there is no
// display. Throws InputError.
int showOffers(const std::optional<std::filesystem::path>& offers, const Device& device, StartScreen start);

} // namespace proupsells::hostprogram
