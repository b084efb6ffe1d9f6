// Recorded inputs as text.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "Platform/Host/RecordedInput.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::host {

// A JSON array with a line for each input, as it stands under "inputs" in a scenario of the host program. Frames that follow each
// other share a line. Numbers read back as they are.
PROUPSELLS_EXPORT std::string inputsAsJson(const std::vector<RecordedInput>& inputs);

// The words in it.
PROUPSELLS_EXPORT std::string_view wordFor(TouchPhase phase);
PROUPSELLS_EXPORT std::string_view wordFor(Key key);
PROUPSELLS_EXPORT std::string_view wordFor(FocusEnd end);
PROUPSELLS_EXPORT std::string_view wordFor(AssistiveAction action);

} // namespace proupsells::host
