// A root view of a given size, laid out without a window, and views with natural sizes to put into it.
#pragma once

#include "Platform/UIKit/Constraints/LayoutSystem.hpp"
#include "Platform/UIKit/Constraints/NSLayoutConstraint.hpp"
#include "Tests/UIKit/Screen.hpp"

namespace proupsells::uikit {

using Constraints = std::vector<std::shared_ptr<NSLayoutConstraint>>;

// A view whose natural size is given.
class SizedView : public UIView {
public:
    explicit SizedView(geometry::Size size) : m_size(size) {}
    geometry::Size intrinsicContentSize() const override {
        ++askedCount;
        return m_size;
    }
    void setNaturalSize(geometry::Size size) {
        m_size = size;
        invalidateIntrinsicContentSize();
    }

    mutable int askedCount = 0;

private:
    geometry::Size m_size;
};

class ConstraintTest : public testing::Test {
protected:
    explicit ConstraintTest(geometry::Size size = {375, 200}) : root(viewAt({{0, 0}, size})) {}

    template <class View>
    static std::shared_ptr<View> added(std::shared_ptr<View> view, UIView& superview) {
        view->setTranslatesAutoresizingMaskIntoConstraints(false);
        superview.addSubview(view);
        return view;
    }
    std::shared_ptr<UIView> plain() { return added(std::make_shared<UIView>(), *root); }
    std::shared_ptr<SizedView> sized(geometry::Size size) { return added(std::make_shared<SizedView>(size), *root); }

    geometry::Rect frameOf(const std::shared_ptr<UIView>& view) {
        root->layoutIfNeeded();
        return view->frame();
    }
    void setRightToLeft() {
        UITraitCollection traits;
        traits.layoutDirection = geometry::LayoutDirection::rightToLeft;
        root->setOverrideTraitCollection(traits);
        root->setNeedsLayout();
    }
    std::vector<std::string> takeLog() {
        std::vector<std::string> messages;
        for (const auto& record : bed.takeLogRecords()) messages.push_back(record.message);
        return messages;
    }

    headless::TestBed bed;
    std::shared_ptr<UIView> root;
};

} // namespace proupsells::uikit
