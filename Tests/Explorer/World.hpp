// A window, the module in it and a host around it, on a virtual clock.
#pragma once

#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "Backends/Headless/FakeClipDecoder.hpp"
#include "Backends/Headless/TestBed.hpp"
#include "Platform/UIKit/Controllers/UIWindow.hpp"
#include "ProUpsells/UpsellViewController.hpp"
#include "Tests/Explorer/Action.hpp"
#include "Tests/Explorer/Host.hpp"
#include "Tests/Explorer/Setting.hpp"

namespace proupsells::explorer {

// The identifiers of the controls whose centres the scroll views around them show. `visible` is what the window shows.
std::set<std::string> reachableControls(const accessibility::SemanticNode& tree, const geometry::Rect& visible);

class World {
public:
    // The paywall has come, a second ago.
    explicit World(const Setting& setting);
    ~World();
    World(const World&) = delete;

    // Then whatever is due at that moment. False where no finger reaches the control, which is not touched then.
    bool perform(const Action& action);

    // Calls and log lines since the start, in order.
    const tests::Ledger& calls() const { return m_ledger; }
    const std::vector<std::string>& logs();

    // Whether the last tap had to scroll first.
    bool hasScrolledForTap() const { return m_hasScrolledForTap; }

    uikit::UIWindow& window() { return *m_window; }
    headless::TestBed& bed() { return m_bed; }
    // Null once it has gone.
    std::shared_ptr<VelaProUpsellViewController> entry() const { return m_watchedEntry.lock(); }
    // Clips that are open.
    int openClips() const { return m_decoder->openCount(); }

    // What was dismissed and still lives, by name, but for what the host holds itself; empty for nothing.
    std::string lingering() const;
    // The host lets go of everything of the module, which is out of the window then. What is left of it, by name; empty for
    // nothing.
    std::string endAll();

private:
    void showPaywall();
    bool tap(const std::string& identifier);
    void operate(const Action& action);
    void act(Deed deed);
    void actOnEntry(Deed deed, VelaProUpsellViewController& entry);
    void sendWhatIsPro();
    void write(const std::string& line);
    void watch();

    Setting m_setting;
    std::shared_ptr<headless::FakeClipDecoder> m_decoder = std::make_shared<headless::FakeClipDecoder>();
    headless::TestBed m_bed;
    tests::Ledger m_ledger;
    std::vector<std::string> m_logs;
    std::shared_ptr<uikit::UIWindow> m_window;
    std::shared_ptr<HostDelegate> m_delegate;
    std::shared_ptr<tests::LedgerTracker> m_tracker;
    std::shared_ptr<tests::LedgerObserver> m_observer = std::make_shared<tests::LedgerObserver>(m_ledger);
    std::shared_ptr<VelaProUpsellViewController> m_entry;
    std::weak_ptr<VelaProUpsellViewController> m_watchedEntry;
    std::weak_ptr<UpsellViewModel> m_watchedModel;
    std::vector<std::pair<std::string, std::weak_ptr<uikit::UIViewController>>> m_watched;
    std::function<void()> m_again; // what was done last by the person
    bool m_hasScrolledForTap = false;
    bool m_hasReacted = false;
};

} // namespace proupsells::explorer
