#include "Tests/Explorer/World.hpp"

#include <utility>

#include "Platform/Accessibility/Search.hpp"

namespace proupsells::explorer {

using accessibility::ReadingElement;
using accessibility::SemanticNode;

namespace {

host::Services servicesWith(std::shared_ptr<host::ClipDecoder> decoder) {
    host::Services services;
    services.clipDecoder = std::move(decoder);
    return services;
}

void addReachable(const SemanticNode& node, const geometry::Rect& visible, std::set<std::string>& identifiers) {
    if (node.isControl && visible.contains(node.frame.center())) identifiers.insert(node.identifier);
    const geometry::Rect inside = node.scroll ? visible.intersection(node.frame) : visible;
    for (const SemanticNode& child : node.children) addReachable(child, inside, identifiers);
}

} // namespace

std::set<std::string> reachableControls(const SemanticNode& tree, const geometry::Rect& visible) {
    std::set<std::string> identifiers;
    addReachable(tree, visible, identifiers);
    return identifiers;
}

World::World(const Setting& setting)
    : m_setting(setting), m_bed(servicesWith(m_decoder)), m_window(uikit::UIWindow::create(setting.size)) {
    if (setting.delegate != Party::absent)
        m_delegate = std::make_shared<HostDelegate>([this](const std::string& line) { write(line); });
    if (setting.tracker != Party::absent) {
        m_tracker = std::make_shared<tests::LedgerTracker>(m_ledger);
        m_tracker->duringCall = [this] {
            const std::string line = std::move(m_ledger.back());
            m_ledger.pop_back();
            write(line);
        };
    }
    showPaywall();
    m_bed.runFor(1);
    if (setting.delegate == Party::released) m_delegate.reset();
    if (setting.tracker == Party::released) m_tracker.reset();
    watch();
}

void World::showPaywall() {
    m_entry = VelaProUpsellViewController::create(plansOf(m_setting.offer), VelaProUpsellViewController::Variant::comparisonPaywall,
                                                  Referrer{"Home", 5}, Entitlement::velaPRO, true);
    m_watchedEntry = m_entry;
    if (m_delegate) m_entry->setDelegate(m_delegate);
    if (m_tracker) m_entry->setTracker(m_tracker);
    if (m_setting.promotesYearly) act(Deed::promoteYearly);
    if (m_setting.promotesMonthly) act(Deed::promoteMonthly);
    m_window->setPresentationObserver(m_observer);
    if (m_setting.isEmbedded) {
        m_window->setRootDismissalHandler([this] {
            m_ledger.push_back("root is to be dismissed");
            m_window->setRootViewController(nullptr);
        });
        return m_window->setRootViewController(m_entry);
    }
    m_window->setRootViewController(std::make_shared<uikit::UIViewController>());
    m_window->rootViewController()->present(m_entry, true);
}

World::~World() {
    logs();
    m_window->setRootViewController(nullptr);
    logs();
}

const std::vector<std::string>& World::logs() {
    for (const commons::LogRecord& record : m_bed.takeLogRecords()) m_logs.push_back(record.message);
    return m_logs;
}

void World::write(const std::string& line) {
    m_ledger.push_back(line);
    if (!m_setting.reaction || m_hasReacted || line.substr(0, line.find('(')) != m_setting.reaction->call) return;
    if (m_setting.reaction->isOfStore != (line.find("Store Page") != std::string::npos)) return;
    m_hasReacted = true;
    act(m_setting.reaction->deed);
}

// --- The person ---

bool World::perform(const Action& action) {
    switch (action.kind) {
    case Action::Kind::tap:
        m_again = [this, identifier = action.target] { tap(identifier); };
        if (!tap(action.target)) return false;
        break;
    case Action::Kind::key: {
        const host::Key key = keyCalled(action.target).value();
        m_again = [this, key] { m_window->key(key); };
        m_window->key(key);
        break;
    }
    case Action::Kind::wait: m_bed.runFor(std::stod(action.target)); break;
    case Action::Kind::host: act(deedCalled(action.target).value()); break;
    default: operate(action);
    }
    m_bed.settle();
    watch();
    return true;
}

// Scrolls only outside of turns, as a person does.
bool World::tap(const std::string& identifier) {
    m_hasScrolledForTap = false;
    const geometry::Rect visible{{}, m_window->frame().size};
    SemanticNode tree = m_window->semanticTree();
    const SemanticNode* control = accessibility::findByIdentifier(tree, identifier);
    if (!control) return false;
    if (!reachableControls(tree, visible).contains(identifier) && control->reveal && !m_bed.loop().isInTurn()) {
        m_hasScrolledForTap = true;
        const auto reveal = control->reveal;
        reveal();
        m_bed.settle();
        tree = m_window->semanticTree();
        control = accessibility::findByIdentifier(tree, identifier);
    }
    if (!control || !reachableControls(tree, visible).contains(identifier)) return false;
    const geometry::Point centre = control->frame.center();
    m_window->touch({host::TouchPhase::began, centre, m_bed.now_s()});
    m_window->touch({host::TouchPhase::ended, centre, m_bed.now_s()});
    return true;
}

void World::operate(const Action& action) {
    const ReadingElement reading = m_window->reading();
    for (const ReadingElement* element : accessibility::elementsOf(reading)) {
        if (element->identifier != action.target) continue;
        switch (action.kind) {
        case Action::Kind::activate:
            m_again = element->activate;
            if (element->activate) element->activate();
            return;
        case Action::Kind::increment:
        case Action::Kind::decrement:
            if (element->adjust) element->adjust(action.kind == Action::Kind::increment ? 1 : -1);
            return;
        case Action::Kind::focus:
            if (element->focus) element->focus();
            return;
        default:
            if (element->revealWhole) element->revealWhole();
            return;
        }
    }
}

// --- The host ---

void World::act(Deed deed) {
    switch (deed) {
    case Deed::dismissAll:
        if (uikit::UIViewController* const root = m_window->rootViewController()) root->dismiss(true);
        return;
    case Deed::letGo: m_entry.reset(); return;
    case Deed::release:
        m_window->setRootViewController(nullptr);
        m_entry.reset();
        return;
    case Deed::releaseDelegate: m_delegate.reset(); return;
    case Deed::releaseTracker: m_tracker.reset(); return;
    case Deed::tapAgain:
        if (const auto again = m_again) again();
        return;
    default:
        if (const auto entry = m_entry) actOnEntry(deed, *entry);
    }
}

void World::actOnEntry(Deed deed, VelaProUpsellViewController& entry) {
    switch (deed) {
    case Deed::promoteYearly: return entry.setAnnualSubscriptionPriceForComparisonWithPromotionalPrice("$119.99");
    case Deed::promoteMonthly: return entry.setMonthlySubscriptionPriceForComparisonWithPromotionalPrice("$19.99");
    case Deed::promoteNothing:
        entry.setAnnualSubscriptionPriceForComparisonWithPromotionalPrice(std::nullopt);
        return entry.setMonthlySubscriptionPriceForComparisonWithPromotionalPrice(std::nullopt);
    case Deed::present:
        if (!m_setting.isEmbedded && m_window->rootViewController()) m_window->rootViewController()->present(m_entry, true);
        return;
    case Deed::presentOther: return entry.present(std::make_shared<uikit::UIViewController>(), true);
    case Deed::openStore: return sendWhatIsPro();
    case Deed::dismiss: return entry.dismiss(true);
    case Deed::dismissAtOnce: return entry.dismiss(false);
    case Deed::unsetParties: entry.setDelegate({}); return entry.setTracker({});
    default: return entry.setOptions(plansOf(deed));
    }
}

void World::sendWhatIsPro() {
    if (m_entry->children().empty()) return;
    dynamic_cast<UpsellViewController&>(*m_entry->children().front())
        .upsellViewModel()
        ->tapEventOccurred.send({UpsellViewModel::TapEvent::WhatIsPro{}});
}

// --- The end ---

// Remembers what stands in the window, to see later whether it has gone.
void World::watch() {
    if (const auto entry = m_watchedEntry.lock(); entry && !entry->children().empty())
        if (const auto paywall = std::dynamic_pointer_cast<UpsellViewController>(entry->children().front()))
            m_watchedModel = paywall->upsellViewModel();
    uikit::UIViewController* shown = m_window->rootViewController();
    while (shown && (shown = shown->presentedViewController())) {
        const auto pointer = uikit::strongReference(*shown);
        const auto isKnown = [&](const auto& each) { return each.second.lock() == pointer; };
        if (std::none_of(m_watched.begin(), m_watched.end(), isKnown))
            m_watched.emplace_back(std::string(shown->typeName()), pointer);
    }
}

std::string World::lingering() const {
    std::set<const uikit::UIViewController*> standing{m_entry.get()};
    const uikit::UIViewController* shown = m_window->rootViewController();
    for (; shown; shown = shown->presentedViewController()) standing.insert(shown);
    std::string left;
    for (const auto& [name, controller] : m_watched)
        if (const auto living = controller.lock(); living && !standing.contains(living.get())) left += " " + name;
    return left;
}

std::string World::endAll() {
    m_window->setRootViewController(nullptr);
    m_entry.reset();
    m_again = nullptr;
    m_bed.settle();
    // What moved has come to rest, and what waits to forget an earlier page of the carousel has done so.
    m_bed.runFor(7);
    std::string left;
    for (const auto& [name, controller] : m_watched)
        if (!controller.expired()) left += " " + name;
    if (!m_watchedEntry.expired()) left += " VelaProUpsellViewController";
    if (!m_watchedModel.expired()) left += " UpsellViewModel";
    if (m_decoder->openCount() > 0) left += " clips";
    if (m_bed.loop().nextDueTime_s()) left += " timers";
    return left;
}

} // namespace proupsells::explorer
