// What can be seen, heard and felt of a world at a moment.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Platform/Accessibility/Reading.hpp"
#include "Tests/Explorer/Action.hpp"
#include "Tests/Explorer/World.hpp"

namespace proupsells::explorer {

// Looks when it is asked for the first time, which costs much; good until the world goes on.
class Observation {
public:
    explicit Observation(World& world) : m_world(&world) {}

    const accessibility::SemanticNode& tree() const;
    const accessibility::ReadingElement& reading() const;
    // The type of the controller in front; empty for none.
    std::string front() const;
    bool isMoving() const;

    // Null when nothing is in focus.
    const accessibility::ReadingElement* focused() const;
    // Null when nothing is told, or seen, under the identifier.
    const accessibility::ReadingElement* told(const std::string& identifier) const;
    const accessibility::SemanticNode* node(const std::string& identifier) const;

private:
    World* m_world;
    mutable std::optional<accessibility::SemanticNode> m_tree;
    mutable std::optional<accessibility::ReadingElement> m_reading;
};

// Everything in words that makes a difference to what comes next, without what is on its way from one place to another: which
// screens stand there, which elements they have and how these stand, how far they are scrolled by and large, and where the focus
// is.
struct Fingerprint {
    std::string screen{};
    std::string scrolled{};
    std::string focus{};

    std::string whole() const { return screen + "scrolled" + scrolled + "\nfocus " + focus + '\n'; }
};
Fingerprint fingerprintOf(World& world, const Observation& seen);

// Which kinds of actions are tried.
struct Alphabet {
    bool hasTaps = false;
    bool hasAssistance = false; // what a screen reader does but for giving the focus
    bool hasFocusing = false;
    bool hasKeys = false;
    std::vector<std::string> waits{}; // seconds
    std::vector<Deed> deeds{};
    // Whether a control is left out, by its identifier.
    bool (*leavesOut)(const std::string& identifier) = [](const std::string&) { return false; };
};
// All that can be done at the moment.
std::vector<Action> actionsIn(const Observation& seen, const Alphabet& alphabet);

} // namespace proupsells::explorer
