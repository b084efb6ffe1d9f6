#include "Platform/Host/AssistiveOperation.hpp"

namespace proupsells::host {

void perform(const accessibility::ReadingElement& element, AssistiveAction action) {
    // Copies, because the operation may change the screen and the element with it.
    const auto call = [](const std::function<void()> operation) {
        if (operation) operation();
    };
    const auto adjust = element.adjust;
    switch (action) {
    case AssistiveAction::activate: return call(element.activate);
    case AssistiveAction::increase:
    case AssistiveAction::decrease:
        if (adjust) adjust(action == AssistiveAction::increase ? 1 : -1);
        return;
    case AssistiveAction::reveal: return call(element.reveal);
    case AssistiveAction::revealWhole: return call(element.revealWhole);
    case AssistiveAction::focus: return call(element.focus);
    }
}

} // namespace proupsells::host
