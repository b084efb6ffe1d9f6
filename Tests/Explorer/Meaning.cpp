#include "Tests/Explorer/Meaning.hpp"

namespace proupsells::explorer {

using accessibility::ReadingElement;
using accessibility::Role;

namespace {

// By the arrows: from the last plan to the first one and back.
void chooseNeighbour(const std::string& identifier, int step, Expected& expected) {
    const auto& plans = expected.plans();
    const auto count = std::ptrdiff_t(plans.size());
    for (std::ptrdiff_t place = 0; place < count; ++place) {
        if ("plan." + plans[std::size_t(place)].SKU() != identifier) continue;
        const std::ptrdiff_t next = (place + step + count) % count;
        if (next != place) expected.press("plan." + plans[std::size_t(next)].SKU());
        return;
    }
}

void expectKey(host::Key key, const ReadingElement* focused, Expected& expected) {
    using host::Key;
    if (key == Key::escape) return expected.escape();
    if (!focused) return;
    if (key == Key::activate || key == Key::space) {
        if (focused->activate) expected.press(focused->identifier);
        return;
    }
    const int step = key == Key::right || key == Key::down ? 1 : key == Key::left || key == Key::up ? -1 : 0;
    if (focused->role == Role::radioButton && step != 0) chooseNeighbour(focused->identifier, step, expected);
}

} // namespace

void expect(const Action& action, const Observation& before, Expected& expected) {
    switch (action.kind) {
    case Action::Kind::tap:
    case Action::Kind::activate: {
        const ReadingElement* const element = before.told(action.target);
        if (element && !element->isDisabled) expected.press(action.target);
        return;
    }
    case Action::Kind::key: return expectKey(keyCalled(action.target).value(), before.focused(), expected);
    case Action::Kind::wait: return expected.pass(std::stod(action.target));
    case Action::Kind::host: return expected.act(deedCalled(action.target).value());
    default: return;
    }
}

} // namespace proupsells::explorer
