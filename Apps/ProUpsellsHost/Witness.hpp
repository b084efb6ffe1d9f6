// Writes down what the window of a session shows.
#pragma once

#include <sstream>

#include "Apps/ProUpsellsHost/HostSession.hpp"
#include "Tooling/Evidence.hpp"

namespace proupsells::hostprogram {

// Both must live longer; the session writes its event lines to `calls`.
class Witness {
public:
    Witness(HostSession& session, std::ostringstream& calls) : m_session(session), m_calls(calls) {}

    // After a step, as JSON; null at the beginning.
    void note(const std::string* did);
    std::vector<tooling::EvidenceMoment> takeMoments() { return std::move(m_moments); }

private:
    std::optional<tooling::EvidenceScreen> changedScreen();

    HostSession& m_session;
    std::ostringstream& m_calls;
    std::vector<tooling::EvidenceMoment> m_moments;
    std::string m_lastTree, m_lastPng;
};

} // namespace proupsells::hostprogram
