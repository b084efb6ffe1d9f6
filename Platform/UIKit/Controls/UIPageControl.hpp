// A row of dots, one for each page.
#pragma once

#include "Platform/UIKit/Controls/UIControl.hpp"

namespace proupsells::uikit {

// Cells of 10 points, centred; the first one is the leading one. A tap goes to the page of the nearest dot.
class UIPageControl : public UIControl {
public:
    enum class BackgroundStyle { automatic, prominent, minimal };

    static constexpr double cellWidth = 10;
    // Of the current page's dot; the others are fainter.
    static constexpr UIColor dotColor{"pageControl", graphics::rgb(0x000000), graphics::rgb(0xFFFFFF)};

    std::string_view typeName() const override { return "UIPageControl"; }

    int numberOfPages() const { return m_numberOfPages; }
    // A negative number counts as 0. The current page is kept within the pages.
    void setNumberOfPages(int count);
    int currentPage() const { return m_currentPage; }
    // Kept within the pages. Sends nothing.
    void setCurrentPage(int page);
    BackgroundStyle backgroundStyle() const { return m_backgroundStyle; }
    void setBackgroundStyle(BackgroundStyle style);

    geometry::Size intrinsicContentSize() const override;
    void touchesEnded(const UITouch& touch) override;
    // "page 2 of 4"
    std::string accessibilityValue() const override;
    // What a tap at the centre does.
    void activate() override { goToPage(pageAt(bounds().midX())); }

    // The centre of a page's dot, in the control's coordinates.
    geometry::Point dotCenter(int page) const;

protected:
    void draw(graphics::PaintContext& context, const graphics::PaintState& state) const override;
    void describe(accessibility::SemanticNode& node, const graphics::PaintState& state) const override;

private:
    int pageAt(double x) const;
    // Kept within the pages. Sends valueChanged when the page becomes another one.
    void goToPage(int page);

    int m_numberOfPages = 0;
    int m_currentPage = 0;
    BackgroundStyle m_backgroundStyle = BackgroundStyle::automatic;
};

} // namespace proupsells::uikit
