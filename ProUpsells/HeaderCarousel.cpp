#include "ProUpsells/HeaderCarousel.hpp"

#include "Platform/Commons/FatalError.hpp"
#include "Platform/LumoKit/LargestTextSize.hpp"
#include "Platform/LumoKit/RoleColors.hpp"
#include "Platform/LumoKit/TextStyle.hpp"
#include "Platform/RunLoop/MainRunLoop.hpp"
#include "Platform/SwiftUI/SwiftUI.hpp"
#include "ProUpsells/CustomPageControl.hpp"
#include "ProUpsells/ResizableImage.hpp"

namespace proupsells {

using namespace swiftui;
using motion::Animation;
using motion::TimingCurve;

namespace {

constexpr double advanceInterval_s = 5.0;
constexpr double pauseAfterChange_s = 5.0;
constexpr Animation advance{.curve = TimingCurve::easeInOut(), .duration_s = 2.0};

// The old title has gone before the new one begins to come.
AnyTransition titleTransition() {
    constexpr Animation entering{.curve = TimingCurve::easeOut(), .duration_s = 0.35, .delay_s = 1.0};
    constexpr Animation leaving{.curve = TimingCurve::easeIn(), .duration_s = 0.35};
    return AnyTransition::asymmetric(AnyTransition::opacity().animation(entering), AnyTransition::opacity().animation(leaving));
}

// Writes with an animation, by which the pages fade.
Binding<int> fading(const Binding<int>& page) {
    return Binding<int>([page] { return page.get(); }, [page](const int& value) { withAnimation([&] { page.set(value); }); });
}

// Each change has a reset of its own, so the flag falls 5 s after the first of several quick ones.
void pauseAdvance(const Binding<bool>& isUserInteracting) {
    isUserInteracting.set(true);
    runloop::MainRunLoop::main().schedule(pauseAfterChange_s, [isUserInteracting] { isUserInteracting.set(false); });
}

} // namespace

View HeaderCarousel::page(int index) const {
    const Page& page = (*pages)[static_cast<std::size_t>(index)];
    return ColorView{graphics::Color::clear} | overlay(ResizableImage{page.image, ContentMode::fill}) | clipped();
}

View HeaderCarousel::bottomRow(const Binding<int>& currentPage, const EnvironmentValues& environment) const {
    const int count = static_cast<int>(pages->size());
    const std::string& title = (*pages)[static_cast<std::size_t>(currentPage.get())].title;
    return HStack{.alignment = VerticalAlignment::bottom,
                  .content =
                      {
                          Text{title} |
                              lumokit::textStyle(lumokit::TextStyle::based(lumokit::PlatformTextStyle::headline, 18, 24, 0.5)) |
                              lumokit::largestTextSize(lumokit::LargestSize::onPicture) | avoidsShortLastLine() | lineLimit(3) |
                              foregroundStyle(lumokit::ContentColor::primary) | padding(Edge::bottom, 18) |
                              padding(Edge::leading, 10) | allowsHitTesting(false) | transition(titleTransition()) | id(title),
                          Spacer{},
                          CustomPageControl{.numberOfPages = count,
                                            .currentPage = environment.reduceMotion ? fading(currentPage) : currentPage} |
                              frame({.width = count * 10.0}) | padding(Edge::trailing, 30) | padding(Edge::bottom, 30),
                      }} |
           // In another language it is another row: titles change at once then, without their transition.
           id(static_cast<std::int64_t>(environment.languageChangeCount)) | colorScheme(graphics::ColorScheme::dark);
}

View HeaderCarousel::body(BuildContext& context) const {
    if (!pages || pages->empty()) commons::fatalError("Division by zero: the header carousel has no pages");
    const auto currentPage = context.state(0);
    const auto isUserInteracting = context.state(false);
    const int count = static_cast<int>(pages->size());

    return TabView{.selection = currentPage, .content = ForEach(count, [&](int index) { return page(index) | tag(index); })} |
           frame({.height = 254}) | frame({.maxWidth = geometry::infinity}) |
           overlay(bottomRow(currentPage, context.environment()), Alignment::bottom) | accessibilityIdentifier("carousel") |
           onReceiveUnattended(combine::TimerPublisher{advanceInterval_s},
                               [currentPage, isUserInteracting, count](double) {
                                   if (isUserInteracting.get()) return;
                                   withAnimation(advance, [&] { currentPage.set((currentPage.get() + 1) % count); });
                               }) |
           onChange(currentPage.get(), [isUserInteracting] { pauseAdvance(isUserInteracting); });
}

} // namespace proupsells
