#include "ProUpsells/UpsellView.hpp"

#include "Platform/Foundation/Bundle.hpp"
#include "Platform/SwiftUI/SwiftUI.hpp"
#include "Platform/VelaUIKit/VelaColors.hpp"
#include "ProUpsells/CallToActionTexts.hpp"
#include "ProUpsells/ComparePlansButton.hpp"
#include "ProUpsells/ContainerWithCloseButton.hpp"
#include "ProUpsells/DisclaimerBlock.hpp"
#include "ProUpsells/HeaderCarousel.hpp"
#include "ProUpsells/HeaderImage.hpp"
#include "ProUpsells/ImageResource.hpp"
#include "ProUpsells/ResizableImage.hpp"
#include "ProUpsells/SubscribeButton.hpp"
#include "ProUpsells/SubscriptionOptions.hpp"

namespace proupsells {

using namespace swiftui;
using foundation::localizedString;
using TapEvent = UpsellViewModel::TapEvent;

namespace {

// What the paywall's parts share.
struct Paywall {
    std::shared_ptr<UpsellEnvironment> upsellEnvironment;
    std::shared_ptr<UpsellViewModel> model;
    std::shared_ptr<const std::vector<Page>> pages;
    Binding<int> selectedIndex;
    bool isLight = true;

    View screen(double height) const;
    View scrollingColumn(bool isCompact) const;
    View column(bool isCompact) const;
    View logo() const;
    View subscribeButton() const;
    View disclaimer(bool isCompact) const;
};

View Paywall::logo() const { return HeaderImage{} | frame(208, 26) | padding(Edge::top, 5) | padding(Edge::bottom, 0); }

View Paywall::subscribeButton() const {
    const SubscriptionOption* option = selectedOption(*model, selectedIndex.get());
    return SubscribeButton{.text = option ? CallToActionTexts::subscribeButtonTitle(*option) : localizedString("Subscribe Now"),
                           // The plans may have changed since the button was made, so what is bought is read anew.
                           .action =
                               [model = model, index = selectedIndex] {
                                   if (const SubscriptionOption* bought = selectedOption(*model, index.get()))
                                       model->tapEventOccurred.send({TapEvent::Purchase{*bought}});
                               },
                           .isEnabled = option != nullptr};
}

View Paywall::disclaimer(bool isCompact) const {
    std::optional<std::string> payment;
    if (const SubscriptionOption* option = selectedOption(*model, selectedIndex.get()))
        payment = CallToActionTexts::paymentDisclaimer(*option, *model);
    return VStack{.content = DisclaimerBlock{.payment = std::move(payment), .isCompact = isCompact, .model = model}};
}

View Paywall::column(bool isCompact) const {
    return VStack{.content =
                      {
                          HeaderCarousel{pages} | fixedSize(false, true),
                          logo(),
                          ComparePlansButton{
                              .text = localizedString(
                                  "Compare Plans: Free vs Pro",
                                  "When tapped, directs a user to a list of differences between the free and pro plans"),
                              .action = [model = model] { model->tapEventOccurred.send({TapEvent::ComparePlans{}}); }},
                          SubscriptionOptions{upsellEnvironment, model, selectedIndex} | padding(Edge::bottom, isCompact ? 0 : 10) |
                              padding(Edge::horizontal) | foregroundStyle(velauikit::marwickContentAccent),
                          subscribeButton() | padding(Edge::bottom, isCompact ? 0 : 5),
                          disclaimer(isCompact),
                      }} |
           padding(Edge::top, isCompact ? 0 : -10) | padding(Edge::bottom, 80);
}

// The picture is white, as our page is. As a mask for a theme's page it costs more.
View fadeIntoPage() {
    constexpr graphics::Color page = velauikit::velaBackground;
    const ImageResource& gradient = ImageResource::termsGradient();
    if (page.resolved(graphics::ColorScheme::light) == page.light) return ResizableImage{image(gradient), ContentMode::fit};
    return ResizableImage{image(gradient, graphics::RenderingMode::tinted), ContentMode::fit} | foregroundStyle(page);
}

View Paywall::scrollingColumn(bool isCompact) const {
    return ScrollView{.content = column(isCompact)} |
           overlay(fadeIntoPage() | opacity(isLight ? 1 : 0) | allowsHitTesting(false), Alignment::bottom) |
           ignoresSafeArea(Edge::bottom);
}

View Paywall::screen(double height) const {
    const bool isCompact = height < 700;
    return ContainerWithCloseButton{.closeButtonAction = [model = model] { model->tapEventOccurred.send({TapEvent::Cancel{}}); },
                                    .contentView = [paywall = *this, isCompact] { return paywall.scrollingColumn(isCompact); }};
}

Page page(const ImageResource& resource, const char* title) {
    return {.image = image(resource),
            .title = localizedString(title, "This is a feature that comes with a Folio Pro subscription")};
}

} // namespace

std::shared_ptr<const std::vector<Page>> UpsellView::defaultCarouselPageList() {
    return std::make_shared<const std::vector<Page>>(std::vector<Page>{
        page(ImageResource::paywallHeaderA(), "Endless premium templates, updated daily."),
        page(ImageResource::paywallHeaderB(), "Thousands of photos, videos, graphics and fonts."),
        page(ImageResource::paywallHeaderC(), "Remove photo backgrounds with one tap."),
        page(ImageResource::paywallHeaderD(), "Grow your business with Custom Domains and Link in Bio."),
    });
}

View UpsellView::body(BuildContext& context) const {
    Paywall paywall{.upsellEnvironment = context.environmentObject<UpsellEnvironment>(),
                    .model = context.observe(model),
                    .pages = carouselPageList,
                    .selectedIndex = context.state(0),
                    .isLight = context.environment().colorScheme == graphics::ColorScheme::light};
    return GeometryReader{[paywall = std::move(paywall)](const GeometryProxy& proxy) { return paywall.screen(proxy.size.height); }};
}

} // namespace proupsells
