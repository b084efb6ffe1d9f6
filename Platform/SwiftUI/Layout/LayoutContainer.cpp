#include "Platform/SwiftUI/Layout/LayoutContainer.hpp"

namespace proupsells::swiftui::detail {

const std::vector<Node*>& LayoutContainerNode::collectSubviews() {
    m_subviews.clear();
    collectLayoutChildren(m_subviews);
    return m_subviews;
}

geometry::Size LayoutContainerNode::measure(const geometry::ProposedSize& proposal) {
    return sizeByRule(proposal, LayoutSubviews(collectSubviews()));
}

void LayoutContainerNode::layOut(const geometry::ProposedSize& proposal, geometry::Size size) {
    const LayoutSubviews subviews(collectSubviews());
    m_places.assign(subviews.size(), {});
    placeByRule(size, proposal, subviews, m_places);
    for (std::size_t index = 0; index < m_places.size(); ++index) {
        const SubviewPlace& place = m_places[index];
        placeChild(*m_subviews[index], place.origin, place.proposal);
    }
    settleTransparentChildren(size);
}

} // namespace proupsells::swiftui::detail
