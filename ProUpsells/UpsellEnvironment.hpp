// The visual theme that all paywall views share.
#pragma once

#include <cstdint>

#include "Platform/Combine/ObservableObject.hpp"

namespace proupsells {

// Lives in the view environment of the paywall's root.
class UpsellEnvironment final : public combine::ObservableObject {
public:
    enum class Environment : std::uint8_t { marwickTeal };

    combine::Published<Environment> environment{*this, Environment::marwickTeal};
};

} // namespace proupsells
