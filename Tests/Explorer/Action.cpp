#include "Tests/Explorer/Action.hpp"

#include <array>

namespace proupsells::explorer {

namespace {

constexpr std::array<std::string_view, 9> kindNames{"tap",    "activate", "increment", "decrement", "focus",
                                                    "reveal", "key",      "wait",      "host"};

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
    return text;
}

std::optional<Action> readAction(std::string_view text) {
    const std::size_t blank = text.find(' ');
    if (blank == std::string_view::npos) return std::nullopt;
    for (std::size_t i = 0; i < kindNames.size(); ++i)
        if (kindNames[i] == text.substr(0, blank)) return Action{Action::Kind(i), std::string(trimmed(text.substr(blank)))};
    return std::nullopt;
}

} // namespace

std::string textOf(const Action& action) { return std::string(kindNames[std::size_t(action.kind)]) + " " + action.target; }

std::string textOf(const std::vector<Action>& actions) {
    std::string text;
    for (const Action& action : actions) text += (text.empty() ? "" : "; ") + textOf(action);
    return text;
}

std::optional<std::vector<Action>> readActions(std::string_view text) {
    std::vector<Action> actions;
    while (!trimmed(text).empty()) {
        const std::size_t end = std::min(text.find(';'), text.size());
        const auto action = readAction(trimmed(text.substr(0, end)));
        if (!action) return std::nullopt;
        actions.push_back(*action);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return actions;
}

const std::vector<std::pair<std::string, host::Key>>& namedKeys() {
    using host::Key;
    static const std::vector<std::pair<std::string, Key>> keys{
        {"escape", Key::escape}, {"tab", Key::tab},       {"backTab", Key::backTab},   {"activate", Key::activate},
        {"space", Key::space},   {"up", Key::up},         {"down", Key::down},         {"left", Key::left},
        {"right", Key::right},   {"pageUp", Key::pageUp}, {"pageDown", Key::pageDown}, {"home", Key::home},
        {"end", Key::end}};
    return keys;
}

std::optional<host::Key> keyCalled(std::string_view name) {
    for (const auto& [each, key] : namedKeys())
        if (each == name) return key;
    return std::nullopt;
}

} // namespace proupsells::explorer
