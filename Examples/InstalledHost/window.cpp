// Embedding the paywall in a window of one's own. It needs a display, so the checks only build it.

#include <ProUpsells/FFmpeg.hpp>
#include <ProUpsells/Icu.hpp>
#include <ProUpsells/ProUpsells.hpp>
#include <ProUpsells/Qt.hpp>
#include <ProUpsells/Raster.hpp>

using namespace proupsells;

int main() {
    qtbackend::Application application({.name = "shop"});
    runloop::MainRunLoop loop(std::make_shared<runloop::RealClock>());
    host::Installation services({.textShaper = std::make_shared<rasterbackend::RasterTextShaper>(),
                                 .imageDecoder = std::make_shared<rasterbackend::RasterImageDecoder>(),
                                 .clipDecoder = std::make_shared<ffmpegbackend::LazyClipDecoder>(
                                     ffmpegbackend::Pace::realTime, ffmpegbackend::LazyClipDecoder::defaultFolders()),
                                 .localeServices = std::make_shared<icubackend::IcuLocaleServices>()});
    foundation::Locale::setCurrent(foundation::Locale{"de_AT"});
    foundation::Bundle::setMain("translations"); // <language>.lproj/Localizable.strings

    const auto ownScreen = std::make_shared<uikit::UIViewController>();
    const auto window = uikit::UIWindow::create({375, 800});
    window->setRootViewController(ownScreen);
    qtbackend::QtWindow shown(window, {.title = "Shop"});
    qtbackend::QtRunLoopDriver driver(loop);
    shown.show();

    const auto paywall = VelaProUpsellViewController::create(
        {SubscriptionOption{"pro.monthly", SubscriptionOption::SubscriptionType::Monthly{"$14.99"}, false}},
        VelaProUpsellViewController::Variant::comparisonPaywall, Referrer{"Home", 5}, Entitlement::velaPRO, true);
    ownScreen->present(paywall, true);
    return application.run();
}
