// What the module's own shelves have in common.
#pragma once

#include "ProUpsells/ImageResource.hpp"
#include "ProUpsells/StorePageShelfViewController.hpp"
#include "ProUpsells/VelaProStorePageShelf.hpp"

namespace proupsells {

// Says what its facts say. Builds its controller when it is first asked for, and keeps it.
class LazyStorePageShelf : public VelaProStorePageShelf {
public:
    struct Facts {
        std::string_view className;
        double height = 0;      // in points
        double bottomInset = 0; // the other sides have none
        // The English texts, which are the keys of their translations; empty for none.
        std::string title = {};
        std::string subtitle = {};
        std::string headline = {}; // of a header, which has no title
        std::vector<ImageResource> images = {};
        std::optional<double> roomForTexts = {}; // in points; absent: what is below may be reached into
    };

    std::string_view className() const override { return m_facts.className; }
    double preferredShelfHeight() const override { return m_facts.height; }
    double heightAddedForTexts(double width, const uikit::UITraitCollection& traits) const override;
    geometry::PhysicalInsets preferredSectionInset() const override { return {.bottom = m_facts.bottomInset}; }
    std::vector<uikit::UIImage> images() const override;
    std::string footerTitle() const override;
    std::string footerSubTitle() const override;
    std::string accessibilityName() const override;

    std::shared_ptr<uikit::UIViewController> viewController() override;
    void setViewController(std::shared_ptr<uikit::UIViewController> controller);

protected:
    using Controller = std::shared_ptr<uikit::UIViewController>;
    using Strip = std::shared_ptr<StorePageShelfViewController>;
    using ScrollDirection = StorePageShelfViewController::ScrollDirection;

    explicit LazyStorePageShelf(Facts facts);

    // Null as long as there is nothing to show.
    virtual Controller makeViewController() const = 0;

    // The strips of a shelf are counted from 0, from the top, and are identified by that number.

    // One image over and over, which drifts.
    Strip repeatingStrip(const ImageResource& image, ScrollDirection direction, int row = 0) const;
    // One image that stands still.
    Strip imageStrip(const ImageResource& image) const;
    // One view that stands still.
    Strip viewStrip(const std::shared_ptr<uikit::UIView>& view) const;
    void identify(StorePageShelfViewController& strip, int row) const;

    static Controller twoRows(const Controller& upper, const Controller& lower);
    // The picture over the shelf's title and subtitle.
    Controller withTexts(const Controller& picture) const;
    // A plain controller that `header` fills.
    static Controller headerController(const std::shared_ptr<uikit::UIView>& header);

private:
    Facts m_facts;
    Controller m_viewController;
};

} // namespace proupsells
