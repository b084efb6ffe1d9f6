#include "Tests/Explorer/Walk.hpp"

#include <chrono>
#include <deque>
#include <map>
#include <set>

#include "Tests/Explorer/Attempt.hpp"

namespace proupsells::explorer {

namespace {

using Way = std::vector<Action>;

// A control that was operated in a state, by a finger or without one, and what came of it.
struct Effect {
    std::string screen;
    std::vector<std::string> calls;
    std::string way;
};

class Walk {
public:
    explicit Walk(const Tour& tour) : m_tour(tour) {}

    Outcome go() {
        const auto start = std::chrono::steady_clock::now();
        begin();
        while (!m_toVisit.empty() && m_outcome.failures.size() < mostFailures) {
            const Way way = std::move(m_toVisit.front());
            m_toVisit.pop_front();
            if (way.size() - m_tour.opening.size() >= m_tour.reach)
                m_outcome.isWhole = false;
            else
                visit(way);
        }
        m_outcome.states = m_known.size();
        m_outcome.time_s = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
        return std::move(m_outcome);
    }

private:
    static constexpr std::size_t mostFailures = 5;

    void begin() {
        Attempt first(m_tour.setting);
        go(first, m_tour.opening);
        report(first, first.problems());
        meet(first, m_tour.opening);
        report(first, first.problemsAtTheEnd());
    }

    void visit(const Way& way) {
        std::map<std::string, Effect> effects; // by the control
        std::vector<Action> actions;
        {
            Attempt here(m_tour.setting);
            go(here, way);
            actions = actionsIn(here.seen(), m_tour.alphabet);
        }
        for (const Action& action : actions) {
            if (m_outcome.failures.size() >= mostFailures) return;
            attempt(way, action, effects);
        }
    }

    void go(Attempt& attempt, const Way& way) const {
        for (const Action& action : way) step(attempt, action);
    }

    Attempt::Step step(Attempt& attempt, const Action& action) const {
        const Attempt::Step outcome = attempt.perform(action);
        const bool pauses = m_tour.pause_s > 0 && action.kind != Action::Kind::wait;
        if (outcome == Attempt::Step::done && pauses) attempt.pause(m_tour.pause_s);
        return outcome;
    }

    void attempt(const Way& way, const Action& action, std::map<std::string, Effect>& effects) {
        Attempt attempt(m_tour.setting);
        go(attempt, way);
        const std::size_t callsBefore = attempt.callCount();
        const Attempt::Step outcome = step(attempt, action);
        if (outcome == Attempt::Step::stops) ++m_outcome.stops;
        if (outcome == Attempt::Step::outOfReach) ++m_outcome.outOfReach;
        if (outcome != Attempt::Step::done) return;
        ++m_outcome.edges;
        auto problems = attempt.problems();
        const bool isTap = action.kind == Action::Kind::tap && !attempt.hasScrolledForTap();
        if (isTap || action.kind == Action::Kind::activate)
            compareEffects(action, {attempt.fingerprint().screen, attempt.callsFrom(callsBefore), attempt.way()}, effects,
                           problems);
        Way longer = way;
        longer.push_back(action);
        const bool isNew = problems.empty() && meet(attempt, std::move(longer));
        const auto probed = isNew ? attempt.problemsAtRest() : attempt.problemsAtTheEnd();
        problems.insert(problems.end(), probed.begin(), probed.end());
        report(attempt, problems);
    }

    // Whoever operates a control without a finger gets the same.
    static void compareEffects(const Action& action, const Effect& effect, std::map<std::string, Effect>& effects,
                               std::vector<std::string>& problems) {
        const auto [known, isFirst] = effects.emplace(action.target, effect);
        if (isFirst) return;
        if (known->second.calls != effect.calls) problems.push_back("other calls than after " + known->second.way);
        if (known->second.screen != effect.screen)
            problems.push_back("another screen than after " + known->second.way + "\n" + known->second.screen + "and\n" +
                               effect.screen);
    }

    bool meet(Attempt& attempt, Way way) {
        if (!m_known.insert(attempt.state(m_tour.tellsPagesApart)).second) return false;
        m_outcome.longestPath = std::max(m_outcome.longestPath, way.size());
        m_toVisit.push_back(std::move(way));
        return true;
    }

    void report(const Attempt& attempt, const std::vector<std::string>& problems) {
        if (problems.empty()) return;
        std::string text = attempt.way();
        for (const std::string& problem : problems) text += "\n    " + problem;
        m_outcome.failures.push_back(std::move(text));
    }

    const Tour& m_tour;
    Outcome m_outcome;
    std::set<std::string> m_known;
    std::deque<Way> m_toVisit; // nearest first
};

} // namespace

Outcome walk(const Tour& tour) { return Walk(tour).go(); }

std::string replay(const Setting& setting, const std::vector<Action>& actions) {
    Attempt attempt(setting);
    std::string text;
    for (const Action& action : actions) {
        const std::size_t before = attempt.callCount();
        text += "> " + textOf(action) + '\n';
        const Attempt::Step step = attempt.perform(action);
        if (step == Attempt::Step::stops) return text + "  the program is to stop\n";
        if (step == Attempt::Step::outOfReach) return text + "  no finger reaches it\n";
        for (const std::string& call : attempt.callsFrom(before)) text += "  " + call + '\n';
        for (const std::string& problem : attempt.problems()) text += "  wrong: " + problem + '\n';
    }
    return text + attempt.state();
}

} // namespace proupsells::explorer
