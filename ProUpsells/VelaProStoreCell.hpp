// A place on the store page that shows one shelf.
#pragma once

#include <memory>

#include "Platform/UIKit/Collection/UICollectionViewCell.hpp"
#include "Platform/UIKit/Controllers/UIViewController.hpp"

namespace proupsells {

// Shows the shelf's controller while the cell can be seen, and holds it weakly.
class VelaProStoreCell : public uikit::UICollectionViewCell {
public:
    std::string_view typeName() const override { return "VelaProStoreCell"; }

    // Null while it shows none.
    std::shared_ptr<uikit::UIViewController> viewController() const { return m_viewController.lock(); }
    // Makes `controller` a child of `parent`, with its view in this cell.
    void embed(const std::shared_ptr<uikit::UIViewController>& controller, uikit::UIViewController& parent);
    void detach();

    // Reads the cell and what is in it as a group of that name, where keys stop; not as a group for an empty one.
    void setSpokenName(std::string name);

    void layoutSubviews() override;

protected:
    // Keys move its strips.
    void describe(accessibility::SemanticNode& node, const graphics::PaintState& state) const override;

private:
    std::weak_ptr<uikit::UIViewController> m_viewController;
};

} // namespace proupsells
