// Two controllers, one above the other.
#pragma once

#include <memory>

#include "Platform/Foundation/Coder.hpp"
#include "Platform/UIKit/Constraints/NSLayoutConstraint.hpp"
#include "Platform/UIKit/Controllers/UIViewController.hpp"

namespace proupsells {

class VerticallyStackedContainerViewController : public uikit::UIViewController {
public:
    VerticallyStackedContainerViewController(std::shared_ptr<uikit::UIViewController> firstShelf,
                                             std::shared_ptr<uikit::UIViewController> secondShelf);
    // Stops the program.
    [[noreturn]] explicit VerticallyStackedContainerViewController(const foundation::Coder& coder);
    std::string_view typeName() const override { return "VerticallyStackedContainerViewController"; }

    // The upper one.
    const std::shared_ptr<uikit::UIViewController>& firstShelf() const { return m_firstShelf; }
    const std::shared_ptr<uikit::UIViewController>& secondShelf() const { return m_secondShelf; }
    // Between the two, in points; 16 unless set.
    double contentSpacing() const { return m_contentSpacing; }
    void setContentSpacing(double spacing);

    void viewDidLoad() override;

private:
    std::shared_ptr<uikit::UIViewController> m_firstShelf;
    std::shared_ptr<uikit::UIViewController> m_secondShelf;
    double m_contentSpacing = 16;
    std::shared_ptr<uikit::NSLayoutConstraint> m_shelfSpacingConstraint; // null until the view has loaded
};

} // namespace proupsells
