// The application around the module: a window with a host screen, over which the entry controller is presented.
#pragma once

#include <memory>

#include "Apps/ProUpsellsHost/Device.hpp"
#include "Apps/ProUpsellsHost/HostLedger.hpp"
#include "Apps/ProUpsellsHost/HostScreen.hpp"
#include "Apps/ProUpsellsHost/Offers.hpp"
#include "Apps/ProUpsellsHost/Scenario.hpp"
#include "Apps/ProUpsellsHost/StartScreen.hpp"
#include "Backends/FFmpeg/ClipPlugin.hpp"
#include "Platform/Host/Services.hpp"
#include "Platform/UIKit/Controllers/UIWindow.hpp"
#include "ProUpsells/UpsellViewController.hpp"

namespace proupsells {
class VelaProStorePageViewController;
}

namespace proupsells::hostprogram {

struct HostParts {
    bool tracker = true;
    bool delegate = true;
    HostScreen screen = HostScreen::plain; // below the paywall
};

HostParts hostPartsOf(const Scenario& scenario);

// Needs a main run loop.
class HostSession {
public:
    HostSession(Offers offers, const Device& device, const HostParts& parts, ffmpegbackend::Pace pace,
                std::shared_ptr<EventLog> log);
    ~HostSession();

    uikit::UIWindow& window() { return *m_window; }
    // The same, for whoever shows it.
    std::shared_ptr<host::WindowContent> windowContent() { return m_window; }
    const Device& device() const { return m_device; }
    const VelaProUpsellViewController& entry() const { return *m_entry; }
    // False once the entry controller has been dismissed.
    bool isShowing() const;

    // Presents the entry controller, animated.
    void present();
    // Leads on from the paywall to another screen, as its buttons do.
    void open(StartScreen screen);
    void setDevice(const Device& device);
    // Whoever shows the window has given it another size.
    void noteSize(geometry::Size size, geometry::PhysicalInsets safeArea);
    void set(const SetStep& step);
    // Shows other offers in the place of those that are shown. The chosen plan stays chosen, by its SKU; one that is gone makes way
    // for the first one. A store page that stands still makes way for one with the shelves of these offers, scrolled as far.
    void replaceOffers(const Offers& offers);
    // Sends one of the paywall's tap events, as if a control had.
    void send(const UpsellViewModel::TapEvent& event);
    void release(HostPart part);

private:
    void installServices();
    void setLanguage();
    uikit::UITraitCollection traits() const;
    std::shared_ptr<UpsellViewController> paywall() const;
    accessibility::SemanticNode paywallTree();
    void choosePlan(std::size_t index);
    void replaceStorePage(VelaProStorePageViewController& former);

    Device m_device;
    std::shared_ptr<EventLog> m_log;
    std::shared_ptr<host::ClipDecoder> m_clipDecoder;
    std::unique_ptr<host::Installation> m_services;
    std::shared_ptr<LedgerDelegate> m_delegate;
    std::shared_ptr<LedgerTracker> m_tracker;
    std::shared_ptr<LedgerObserver> m_observer;
    std::shared_ptr<uikit::UIWindow> m_window;
    std::shared_ptr<VelaProUpsellViewController> m_entry;
};

} // namespace proupsells::hostprogram
