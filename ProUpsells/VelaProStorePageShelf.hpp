// One feature advertised on the store page.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "Platform/System/Compiler.hpp"
#include "Platform/UIKit/Controllers/UIViewController.hpp"

namespace proupsells {

// Main thread only. Held by its page, so that its views may hold it weakly.
class PROUPSELLS_EXPORT VelaProStorePageShelf : public std::enable_shared_from_this<VelaProStorePageShelf> {
public:
    virtual ~VelaProStorePageShelf() = default;

    // The class's name, as in the code.
    virtual std::string_view className() const = 0;
    // What the shelf's cell shows; null as long as there is nothing to show.
    virtual std::shared_ptr<uikit::UIViewController> viewController() = 0;
    // What its cell shows at their natural size, so that they can be made ready before; none by default.
    virtual std::vector<uikit::UIImage> images() const { return {}; }
    // The cell's, in points; the greatest finite number means as high as the page.
    virtual double preferredShelfHeight() const = 0;
    // By how much the cell is higher than that, so that texts of the person's size have their room in a page of a width.
    virtual double heightAddedForTexts(double width, const uikit::UITraitCollection& traits) const {
        (void)width, (void)traits;
        return 0;
    }
    // The room around the cell, in points.
    virtual geometry::PhysicalInsets preferredSectionInset() const = 0;
    // The headline, empty for none.
    virtual std::string footerTitle() const = 0;
    // The one-sentence explanation, empty for none.
    virtual std::string footerSubTitle() const = 0;
    // What the shelf is called while it is out of sight, for those who hear the page; the headline unless overridden. One without a
    // name cannot be asked for.
    virtual std::string accessibilityName() const { return footerTitle(); }
};

} // namespace proupsells
