#include "Platform/Host/AssistiveOperation.hpp"

namespace proupsells::host {

void perform(const accessibility::ReadingElement& element, AssistiveAction action) {
    // Copies, because the operation may change the screen and the element with it.
    std::function<void()> operation;
    switch (action) {
    case AssistiveAction::activate: operation = element.activate; break;
    case AssistiveAction::increase:
    case AssistiveAction::decrease:
        if (const auto adjust = element.adjust) adjust(action == AssistiveAction::increase ? 1 : -1);
        return;
    case AssistiveAction::reveal: operation = element.reveal; break;
    case AssistiveAction::revealWhole: operation = element.revealWhole; break;
    case AssistiveAction::focus: operation = element.focus; break;
    }
    if (operation) operation();
}

} // namespace proupsells::host
