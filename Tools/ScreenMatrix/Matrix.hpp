// The screens in one language: in every size, text size, appearance and direction.
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>

#include "Tooling/ScreenAudit.hpp"

namespace proupsells::matrix {

enum class Extent {
    sample, // a telephone and a desk, the usual and the largest text, in light
    whole,
};

struct Options {
    std::string locale = "en_US";
    std::filesystem::path strings; // a host's translations; empty for none
    Extent extent = Extent::whole;
    double leastControl = 24; // points
};

// Told of a configuration, such as "en_XA paywall ltr large 320x568 light", and of what is wrong in it.
using Tell = std::function<void(const std::string& configuration, const tooling::Finding& finding)>;

// Tells of each finding of a configuration once, however far the screen was scrolled for it. Returns how many configurations there
// were. Once a process: the comparison keeps the language of its first use.
std::size_t auditAll(const Options& options, const Tell& tell);

} // namespace proupsells::matrix
