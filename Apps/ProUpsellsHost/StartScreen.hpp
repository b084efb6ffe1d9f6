// The screens that a command can begin with.
#pragma once

#include "Apps/ProUpsellsHost/Word.hpp"

namespace proupsells::hostprogram {

enum class StartScreen { paywall, comparison, store };

inline constexpr Word<StartScreen> startScreens[] = {
    {"paywall", StartScreen::paywall},
    {"comparison", StartScreen::comparison},
    {"store", StartScreen::store},
};

} // namespace proupsells::hostprogram
