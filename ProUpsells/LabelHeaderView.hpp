// Another header for the page: a headline alone.
#pragma once

#include "Platform/Foundation/Bundle.hpp"
#include "ProUpsells/StoreHeaderView.hpp"

namespace proupsells {

class LabelHeaderView : public StoreHeaderView {
public:
    // In English, the key of its translations.
    static constexpr const char* headline = foundation::localizable("All the templates. All the fonts. Graphics galore.");

    explicit LabelHeaderView(const geometry::Rect& frame);
    // Stops the program: "init(coder:) has not been implemented".
    explicit LabelHeaderView(const foundation::Coder& coder) : StoreHeaderView(coder) {}
    std::string_view typeName() const override { return "LabelHeaderView"; }
};

} // namespace proupsells
