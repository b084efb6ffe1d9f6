#include "Apps/ProUpsellsHost/HostSession.hpp"

#include "Backends/FFmpeg/LazyClipDecoder.hpp"
#include "Backends/Headless/FixedTextShaper.hpp"
#include "Backends/Icu/IcuLocaleServices.hpp"
#include "Backends/Raster/RasterImageDecoder.hpp"
#include "Backends/Raster/RasterTextShaper.hpp"
#include "Platform/Commons/DefaultLogger.hpp"
#include "Platform/Foundation/Bundle.hpp"
#include "ProUpsells/UpsellViewController.hpp"
#include "ProUpsells/VelaProStorePageViewController.hpp"

namespace proupsells::hostprogram {

HostParts hostPartsOf(const Scenario& scenario) {
    return {.tracker = scenario.hasTracker, .delegate = scenario.hasDelegate, .screen = scenario.screen};
}

HostSession::HostSession(Offers offers, const Device& device, const HostParts& parts, ffmpegbackend::Pace pace,
                         std::shared_ptr<EventLog> log)
    : m_device(device), m_log(std::move(log)),
      m_clipDecoder(std::make_shared<ffmpegbackend::LazyClipDecoder>(pace, ffmpegbackend::LazyClipDecoder::defaultFolders())) {
    commons::DefaultLogger::shared().setSink([log = m_log](const commons::LogRecord& record) { log->write(record); });
    installServices();
    setLanguage();
    if (m_device.theme != Theme{}) setTheme(m_device.theme);

    m_window = uikit::UIWindow::create(device.size, device.safeArea);
    m_window->setTraits(traits());
    m_observer = std::make_shared<LedgerObserver>(m_log);
    m_window->setPresentationObserver(m_observer);
    m_window->setRootViewController(makeHostScreen(parts.screen));

    VelaProStorePageViewController::shouldMentioniCloudSync = offers.shouldMentioniCloudSync;
    m_entry = VelaProUpsellViewController::create(std::move(offers.options), offers.variant, std::move(offers.referrer),
                                                  offers.entitlement, offers.showLoginOnSuccess);
    if (parts.tracker) m_tracker = std::make_shared<LedgerTracker>(m_log);
    if (parts.delegate) m_delegate = std::make_shared<LedgerDelegate>(m_log);
    m_entry->setTracker(m_tracker);
    m_entry->setDelegate(m_delegate);
    m_entry->setAnnualSubscriptionPriceForComparisonWithPromotionalPrice(
        offers.annualSubscriptionPriceForComparisonWithPromotionalPrice);
    m_entry->setMonthlySubscriptionPriceForComparisonWithPromotionalPrice(
        offers.monthlySubscriptionPriceForComparisonWithPromotionalPrice);
}

HostSession::~HostSession() {
    m_window->setRootViewController(nullptr);
    if (m_device.theme != Theme{}) setTheme({});
    commons::DefaultLogger::shared().setSink({});
}

void HostSession::installServices() {
    host::Services services;
    if (m_device.fonts == FontChoice::fixed)
        services.textShaper = std::make_shared<headless::FixedTextShaper>();
    else
        services.textShaper = std::make_shared<rasterbackend::RasterTextShaper>();
    services.imageDecoder = std::make_shared<rasterbackend::RasterImageDecoder>();
    services.clipDecoder = m_clipDecoder;
    services.localeServices = std::make_shared<icubackend::IcuLocaleServices>();
    m_services = std::make_unique<host::Installation>(std::move(services));
}

void HostSession::setLanguage() {
    foundation::Locale::setCurrent(foundation::Locale{m_device.locale});
    foundation::Bundle::setMain(m_device.strings);
}

uikit::UITraitCollection HostSession::traits() const {
    uikit::UITraitCollection traits;
    traits.userInterfaceStyle = m_device.appearance;
    traits.displayScale = m_device.scale;
    traits.preferredContentSizeCategory = m_device.textSize;
    traits.reduceMotion = m_device.reduceMotion;
    switch (m_device.layoutDirection) {
    case DirectionChoice::automatic:
        traits.layoutDirection = foundation::LocaleServices::current().layoutDirection(foundation::Locale::current());
        break;
    case DirectionChoice::leftToRight: traits.layoutDirection = geometry::LayoutDirection::leftToRight; break;
    case DirectionChoice::rightToLeft: traits.layoutDirection = geometry::LayoutDirection::rightToLeft; break;
    }
    return traits;
}

bool HostSession::isShowing() const { return m_entry->presentingViewController() != nullptr; }

void HostSession::present() { m_window->rootViewController()->present(m_entry, true); }

void HostSession::open(StartScreen screen) {
    if (screen == StartScreen::comparison) send({UpsellViewModel::TapEvent::ComparePlans{}});
    if (screen == StartScreen::store) send({UpsellViewModel::TapEvent::WhatIsPro{}});
}

void HostSession::setDevice(const Device& device) {
    const bool hasOtherFonts = device.fonts != m_device.fonts;
    const bool hasOtherLanguage = device.locale != m_device.locale || device.strings != m_device.strings;
    const bool hasOtherTheme = device.theme != m_device.theme;
    m_device = device;
    if (hasOtherFonts) installServices();
    if (hasOtherLanguage) setLanguage();
    if (hasOtherTheme) setTheme(m_device.theme);
    m_window->setSize(device.size, device.safeArea);
    m_window->setTraits(traits());
}

void HostSession::noteSize(geometry::Size size, geometry::PhysicalInsets safeArea) {
    m_device.size = size;
    m_device.safeArea = safeArea;
}

void HostSession::set(const SetStep& step) {
    if (step.options) m_entry->setOptions(*step.options);
    if (step.annualPrice) m_entry->setAnnualSubscriptionPriceForComparisonWithPromotionalPrice(*step.annualPrice);
    if (step.monthlyPrice) m_entry->setMonthlySubscriptionPriceForComparisonWithPromotionalPrice(*step.monthlyPrice);
    if (step.shouldMentioniCloudSync) VelaProStorePageViewController::shouldMentioniCloudSync = *step.shouldMentioniCloudSync;
    if (step.device) setDevice(*step.device);
}

void HostSession::send(const UpsellViewModel::TapEvent& event) {
    if (const auto shown = paywall()) shown->upsellViewModel()->tapEventOccurred.send(event);
}

std::shared_ptr<UpsellViewController> HostSession::paywall() const {
    const auto& children = m_entry->children();
    return children.empty() ? nullptr : std::dynamic_pointer_cast<UpsellViewController>(children.front());
}

void HostSession::release(HostPart part) {
    if (part == HostPart::delegate)
        m_delegate.reset();
    else
        m_tracker.reset();
}

} // namespace proupsells::hostprogram
