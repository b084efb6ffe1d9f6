// Other offers in a session that is shown.
#include <algorithm>
#include <utility>
#include <vector>

#include "Apps/ProUpsellsHost/HostSession.hpp"
#include "Platform/UIKit/Collection/UICollectionView.hpp"
#include "ProUpsells/VelaProStorePageViewController.hpp"

namespace proupsells::hostprogram {

namespace {

using accessibility::SemanticNode;

// The plans of the paywall, in their order.
void collectPlans(const SemanticNode& node, std::vector<const SemanticNode*>& plans) {
    if (node.identifier.starts_with("plan.") && node.activate) plans.push_back(&node);
    for (const SemanticNode& child : node.children) collectPlans(child, plans);
}

std::vector<const SemanticNode*> plansIn(const SemanticNode& paywall) {
    std::vector<const SemanticNode*> plans;
    collectPlans(paywall, plans);
    return plans;
}

std::vector<const SemanticNode*>::const_iterator chosenAmong(const std::vector<const SemanticNode*>& plans) {
    return std::find_if(plans.begin(), plans.end(),
                        [](const SemanticNode* plan) { return contains(plan->traits, accessibility::Traits::selected); });
}

} // namespace

// Also while another screen covers it.
SemanticNode HostSession::paywallTree() {
    const auto shown = paywall();
    const uikit::UIView* const view = shown ? shown->viewIfLoaded() : nullptr;
    return view ? view->semanticNode({}) : SemanticNode{};
}

void HostSession::choosePlan(std::size_t index) {
    const SemanticNode tree = paywallTree();
    plansIn(tree).at(index)->activate();
}

// A page has the shelves, and tells where the person came from, as it was made with.
void HostSession::replaceStorePage(VelaProStorePageViewController& former) {
    const double offset = former.collectionView()->contentOffset().y;
    former.dismiss(false);

    const auto page = VelaProStorePageViewController::create(m_entry->options(), m_entry->referrer(), m_entry->entitlement());
    page->setTracker(m_entry->tracker());
    page->continueToSelectPlan = [weakPage = std::weak_ptr<VelaProStorePageViewController>(page)] {
        if (const auto shown = weakPage.lock()) shown->dismiss(true);
    };
    m_entry->present(page, false);
    m_window->semanticTree(); // lays it out, so that it can be scrolled
    page->collectionView()->scrollBy({}, {0, offset});
}

void HostSession::replaceOffers(const Offers& offers) {
    const SemanticNode before = paywallTree();
    const auto plans = plansIn(before);
    const auto chosen = chosenAmong(plans);
    const std::string identifier = chosen == plans.end() ? "" : (*chosen)->identifier;

    // The paywall has to have a plan at the place that is chosen, whatever plans there are.
    const auto isShown = [](const SubscriptionOption& option) { return !option.isLifetime(); };
    const auto count = std::count_if(offers.options.begin(), offers.options.end(), isShown);
    if (chosen != plans.end() && chosen - plans.begin() >= count) choosePlan(0);
    m_entry->setOptions(offers.options);
    m_entry->setAnnualSubscriptionPriceForComparisonWithPromotionalPrice(
        offers.annualSubscriptionPriceForComparisonWithPromotionalPrice);
    m_entry->setMonthlySubscriptionPriceForComparisonWithPromotionalPrice(
        offers.monthlySubscriptionPriceForComparisonWithPromotionalPrice);
    m_entry->setShowLoginOnSuccess(offers.showLoginOnSuccess);
    const bool isAskedFromElsewhere = offers.referrer != m_entry->referrer() || offers.entitlement != m_entry->entitlement();
    m_entry->setReferrer(offers.referrer);
    m_entry->setEntitlement(offers.entitlement);
    const bool hadShelf = std::exchange(VelaProStorePageViewController::shouldMentioniCloudSync, offers.shouldMentioniCloudSync);
    const bool hasOtherShelves = hadShelf != offers.shouldMentioniCloudSync;
    if (auto* page = dynamic_cast<VelaProStorePageViewController*>(m_entry->presentedViewController())) {
        page->updateOptions(offers.options);
        const bool isOnItsWay = m_window->isTransitioning();
        if ((isAskedFromElsewhere || hasOtherShelves) && !isOnItsWay) replaceStorePage(*page);
    }

    const SemanticNode after = paywallTree();
    const auto newPlans = plansIn(after);
    const auto place =
        std::find_if(newPlans.begin(), newPlans.end(), [&](const SemanticNode* plan) { return plan->identifier == identifier; });
    if (place != newPlans.end()) choosePlan(std::size_t(place - newPlans.begin()));
}

} // namespace proupsells::hostprogram
