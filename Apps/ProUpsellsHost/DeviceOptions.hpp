// The options that stand for keys of a device.
#pragma once

#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "Apps/ProUpsellsHost/Device.hpp"

namespace proupsells::hostprogram {

// What stands in the place of a file in complaints about arguments.
inline constexpr const char* commandLinePlace = "command line";

// Lives as long as the command that it was added to.
class DeviceOptions {
public:
    void addTo(CLI::App& command);
    // Throws InputError.
    Device read() const;
    // The keys of those that are there.
    std::vector<std::string> given() const;

    // As given for a key; empty where it is not.
    std::string value(std::string_view key) const;

private:
    static constexpr std::size_t count = 10;
    std::array<std::string, count> m_values; // empty where an option is left out
};

// The ordinary device with a host's own translations and brand, where they are given. Throws InputError.
Device brandedDevice(const std::optional<std::filesystem::path>& strings, const std::optional<std::filesystem::path>& theme);

} // namespace proupsells::hostprogram
