#include "ProUpsells/CustomPageControl.hpp"

#include "Platform/Foundation/Bundle.hpp"

namespace proupsells {

std::shared_ptr<CustomPageControl::Coordinator> CustomPageControl::makeCoordinator() const {
    return std::make_shared<Coordinator>(*this);
}

std::shared_ptr<uikit::UIPageControl> CustomPageControl::makeUIView(const Context& context) const {
    auto pageControl = std::make_shared<uikit::UIPageControl>();
    pageControl->setNumberOfPages(numberOfPages);
    pageControl->setBackgroundStyle(uikit::UIPageControl::BackgroundStyle::minimal);
    pageControl->accessibilityIdentifier = "carousel.pageControl";
    pageControl->accessibilitySpoken.role = accessibility::Role::pager;
    pageControl->addTarget(std::weak_ptr(context.coordinator), &Coordinator::pageChanged, uikit::UIControl::Event::valueChanged);
    return pageControl;
}

void CustomPageControl::updateUIView(uikit::UIPageControl& pageControl, const Context& context) const {
    context.coordinator->setParent(*this);
    pageControl.accessibilitySpoken.name =
        foundation::localizedString("Pro features", "Spoken name of the control that turns the pages of the header");
    pageControl.setNumberOfPages(numberOfPages);
    pageControl.setCurrentPage(currentPage.get());
}

void CustomPageControl::Coordinator::pageChanged(uikit::UIControl& sender) {
    m_parent.currentPage.set(static_cast<uikit::UIPageControl&>(sender).currentPage());
}

swiftui::Element* CustomPageControl::makeElement() && { return hosting::newRepresentable(std::move(*this)); }

} // namespace proupsells
