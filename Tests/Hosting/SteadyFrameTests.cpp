#include "Tests/Hosting/HostingScreen.hpp"

#include "Platform/Hosting/UIViewRepresentable.hpp"
#include "Platform/UIKit/Controls/UIPageControl.hpp"
#include "Tests/Support/AllocationCounter.hpp"

namespace proupsells::hosting {
namespace {

using namespace swiftui;

struct FourDots {
    using UIViewType = uikit::UIPageControl;
    std::shared_ptr<UIViewType> makeUIView(const UIViewRepresentableContext<FourDots>&) const {
        auto control = std::make_shared<uikit::UIPageControl>();
        control->setNumberOfPages(4);
        return control;
    }
    void updateUIView(UIViewType&, const UIViewRepresentableContext<FourDots>&) const {}
    Element* makeElement() && { return newRepresentable(std::move(*this)); }
};

struct Page {
    View body(BuildContext&) const {
        return VStack{.content = {Text{"A title"}, Rectangle() | frame({.height = 100}), FourDots{}}};
    }
};

TEST_F(HostingTest, ASteadyFrameOfATreeInAWindowAllocatesNothing) {
    show(Page{});
    bed.settle();
    graphics::DisplayList list;
    window->paint(list);
    const std::size_t commands = list.commands.size();

    const std::size_t allocations = tests::allocationsDuring([&] {
        window->paint(list);
        window->paint(list);
    });

    EXPECT_EQ(allocations, 0u);
    EXPECT_EQ(list.commands.size(), commands);
    EXPECT_GE(commands, 6u);
}

} // namespace
} // namespace proupsells::hosting
