#include "Tests/Explorer/Attempt.hpp"

#include <cstdio>
#include <sstream>

#include "Platform/Commons/FatalError.hpp"

namespace proupsells::explorer {

namespace {

// Without zeros at the end.
std::string written(double number) {
    std::ostringstream stream;
    stream << number;
    return stream.str();
}

// Whether a person may move the page by it.
bool scrolls(const Action& action) {
    using Kind = Action::Kind;
    if (action.kind != Kind::key) return action.kind == Kind::reveal;
    return action.target != "tab" && action.target != "backTab" && action.target != "activate" && action.target != "escape";
}

// Of the attempt that is made at the time.
const Attempt* current = nullptr;

void tellTheWay(std::string_view) {
    if (current) std::fprintf(stderr, "The program has stopped on the way %s\n", current->way().c_str());
}

} // namespace

Attempt::Attempt(const Setting& setting) : m_setting(setting), m_world(setting), m_expected(setting), m_seen(m_world) {
    current = this;
    commons::setFatalErrorHook(tellTheWay);
    m_timers.note(m_world, {}, m_expected);
}

Attempt::~Attempt() {
    commons::setFatalErrorHook({});
    current = nullptr;
}

std::string Attempt::focus() const { return m_seen.focused() ? m_seen.focused()->identifier : std::string(); }

Attempt::Step Attempt::perform(const Action& action) {
    m_done.push_back(action);
    expect(action, m_seen, m_expected);
    if (m_expected.stops()) return Step::stops;
    m_hasFocus = m_hasFocus || action.kind == Action::Kind::key || action.kind == Action::Kind::focus;
    const std::string focusBefore = m_hasFocus ? focus() : "";
    const bool isDone = m_world.perform(action);
    m_seen = Observation(m_world);
    m_timers.note(m_world, action, m_expected);
    if (m_hasFocus) followFocus(action, focusBefore);
    return isDone ? Step::done : Step::outOfReach;
}

void Attempt::followFocus(const Action& action, const std::string& before) {
    const bool isAway = focus() == before && !focusIsInSight(m_world, m_seen);
    // What opens or closes makes the page longer or shorter, and what comes on the screen by that may open again.
    const bool mayHaveMoved = scrolls(action) || before.starts_with("comparison.category");
    m_isFocusScrolledAway = isAway && (m_isFocusScrolledAway || mayHaveMoved);
}

void Attempt::pause(double duration_s) { perform({Action::Kind::wait, written(duration_s)}); }

Fingerprint Attempt::fingerprint() { return fingerprintOf(m_world, m_seen); }

std::string Attempt::state(bool tellsPagesApart) {
    std::string text = m_expected.state() + '\n' + fingerprint().whole();
    const std::size_t page = tellsPagesApart ? std::string::npos : text.find("carousel.pageControl|");
    if (page != std::string::npos) text.erase(page, text.find('\n', page) - page);
    return text;
}

std::vector<std::string> Attempt::callsFrom(std::size_t first) const {
    const auto& calls = m_world.calls();
    return {calls.begin() + std::ptrdiff_t(std::min(first, calls.size())), calls.end()};
}

std::vector<std::string> Attempt::problems() {
    std::vector<std::string> problems = problemsOf(m_world, m_seen, m_expected, m_isFocusScrolledAway);
    if (const auto problem = m_timers.problem(m_world, m_seen, m_expected)) problems.push_back(*problem);
    return problems;
}

std::vector<std::string> Attempt::problemsAtRest() {
    constexpr double untilEverythingRests_s = 11;
    const Action rest{Action::Kind::wait, written(untilEverythingRests_s)};
    std::vector<std::string> found;
    if (perform(rest) == Step::done) {
        found = problems();
        if (const std::string left = m_world.lingering(); !left.empty()) found.push_back("dismissed, and still there:" + left);
    }
    m_done.pop_back();
    for (std::string& problem : found) problem += " (after " + rest.target + " s)";
    return found;
}

std::vector<std::string> Attempt::problemsAtTheEnd() {
    m_expected.act(Deed::release);
    std::vector<std::function<void()>> operations;
    for (const accessibility::ReadingElement* element : accessibility::elementsOf(m_seen.reading()))
        operations.insert(operations.end(), {element->activate, element->reveal, element->revealWhole, element->focus});
    std::vector<std::string> problems;
    if (const std::string left = m_world.endAll(); !left.empty())
        problems.push_back("once the host has let go of everything, there is still:" + left);
    for (const auto& operation : operations)
        if (operation) operation();
    m_world.bed().settle();
    m_seen = Observation(m_world);
    for (const std::string& problem : problemsOf(m_world, m_seen, m_expected, false))
        problems.push_back("once the host has let go of everything: " + problem);
    return problems;
}

std::string Attempt::way() const { return m_setting.name + ": " + textOf(m_done); }

} // namespace proupsells::explorer
