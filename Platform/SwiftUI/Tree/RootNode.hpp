// The outermost node: a host's rectangle, whose child stands in what the safe area leaves.
#pragma once

#include "Platform/SwiftUI/Tree/Node.hpp"

namespace proupsells::swiftui {

class RootNode final : public Node {
public:
    explicit RootNode(ViewHost& host);

    void build(const View& root, UpdatePass& pass);
    // Lays everything out in the host's rectangle.
    void layOutIn(geometry::Size size);

protected:
    geometry::Size measure(const geometry::ProposedSize& proposal) override;
    void layOut(const geometry::ProposedSize& proposal, geometry::Size size) override;
};

} // namespace proupsells::swiftui
