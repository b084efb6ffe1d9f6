// The page's header: the product's logo over a headline.
#pragma once

#include <memory>
#include <optional>

#include "Platform/Foundation/Bundle.hpp"
#include "Platform/UIKit/Views/UIImageView.hpp"
#include "ProUpsells/StoreHeaderView.hpp"

namespace proupsells {

class VelaProHeaderView : public StoreHeaderView {
public:
    // In English, the key of its translations.
    static constexpr const char* headline = foundation::localizable("It's never been easier to look professional.");

    explicit VelaProHeaderView(const geometry::Rect& frame);
    // Stops the program: "init(coder:) has not been implemented".
    explicit VelaProHeaderView(const foundation::Coder& coder) : StoreHeaderView(coder) {}
    std::string_view typeName() const override { return "VelaProHeaderView"; }

    // By how much the headline is higher than its room, which is that of the normal text size, in a header of a width.
    double heightAddedForHeadline(double width, const uikit::UITraitCollection& traits) const;

    const std::shared_ptr<uikit::UIImageView>& proLogoImageView() const { return m_proLogoImageView; }

    void languageDidChange() override;

private:
    void applyLogoName();
    void layOut();

    std::shared_ptr<uikit::UIImageView> m_proLogoImageView;
};

// The width of a picture whose height is 1; absent where the size has none.
std::optional<double> aspectRatio(geometry::Size size);

} // namespace proupsells
