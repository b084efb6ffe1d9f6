// What assistive technology does to an element.
#pragma once

#include "Platform/Accessibility/Reading.hpp"
#include "Platform/Host/RecordedInput.hpp"

namespace proupsells::host {

// Nothing happens where the element has no such operation.
void perform(const accessibility::ReadingElement& element, AssistiveAction action);

} // namespace proupsells::host
