// A proposal as nodes remember it: every view has several, so they are kept small.
#pragma once

#include <limits>
#include <optional>

#include "Platform/Geometry/Geometry.hpp"

namespace proupsells::swiftui {

class StoredProposal {
public:
    StoredProposal() = default;
    StoredProposal(const geometry::ProposedSize& proposal)
        : m_width(proposal.width.value_or(absent)), m_height(proposal.height.value_or(absent)) {}

    bool operator==(const geometry::ProposedSize& proposal) const {
        return m_width == proposal.width.value_or(absent) && m_height == proposal.height.value_or(absent);
    }

private:
    // No layout proposes such a length.
    static constexpr double absent = std::numeric_limits<double>::lowest();

    double m_width = absent;
    double m_height = absent;
};

} // namespace proupsells::swiftui
