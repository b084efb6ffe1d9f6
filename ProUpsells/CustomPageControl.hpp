// The carousel's page indicator.
#pragma once

#include <memory>

#include "Platform/Hosting/UIViewRepresentable.hpp"
#include "Platform/SwiftUI/Tree/State.hpp"
#include "Platform/UIKit/Controls/UIPageControl.hpp"

namespace proupsells {

// A tap on a dot writes its page into the binding.
struct CustomPageControl {
    int numberOfPages = 0;
    swiftui::Binding<int> currentPage;

    class Coordinator;
    using UIViewType = uikit::UIPageControl;
    using Context = hosting::UIViewRepresentableContext<CustomPageControl>;

    std::shared_ptr<Coordinator> makeCoordinator() const;
    std::shared_ptr<uikit::UIPageControl> makeUIView(const Context& context) const;
    void updateUIView(uikit::UIPageControl& pageControl, const Context& context) const;

    swiftui::Element* makeElement() &&;
};

class CustomPageControl::Coordinator {
public:
    explicit Coordinator(CustomPageControl parent) : m_parent(std::move(parent)) {}

    // The newest value: its binding may write otherwise.
    void setParent(CustomPageControl parent) { m_parent = std::move(parent); }
    void pageChanged(uikit::UIControl& sender);

private:
    CustomPageControl m_parent;
};

} // namespace proupsells
