#include "Tests/Soak/Visitor.hpp"

#include <cmath>
#include <set>
#include <utility>

#include "Platform/Accessibility/Search.hpp"
#include "Tests/ProUpsells/Offers.hpp"

namespace proupsells::soak {

using accessibility::ReadingElement;
using accessibility::SemanticNode;
using accessibility::Traits;

namespace {

constexpr std::size_t rememberedDeeds = 30;

std::string textOf(geometry::Point point) { return std::to_string(point.x) + ", " + std::to_string(point.y); }

std::string textOf(const geometry::Rect& rect) {
    return textOf(rect.origin) + ", " + std::to_string(rect.width()) + " x " + std::to_string(rect.height());
}

// Plans that a host may set whichever is chosen: there are always as many, or none.
std::vector<SubscriptionOption> plansOf(int number) {
    if (number == 0) return {};
    const std::string price = "$" + std::to_string(number) + ".99";
    return {tests::yearly(price, {number % 2 ? std::optional<std::string>("1 week") : std::nullopt, number % 3 == 0}),
            tests::monthly(price, {std::nullopt, number % 5 == 0})};
}

void addUnsound(const SemanticNode& node, std::vector<std::string>& problems) {
    const geometry::Rect& frame = node.frame;
    const bool isFinite = std::isfinite(frame.minX()) && std::isfinite(frame.minY()) && std::isfinite(frame.maxX()) &&
                          std::isfinite(frame.maxY()) && std::isfinite(node.opacity);
    if (!isFinite || frame.width() < 0 || frame.height() < 0)
        problems.push_back(node.type + " " + node.identifier + " has no sound frame");
    for (const SemanticNode& child : node.children) addUnsound(child, problems);
}

void addAboutControls(const SemanticNode& tree, std::vector<std::string>& problems) {
    std::set<std::string> identifiers;
    for (const SemanticNode* control : accessibility::controls(tree)) {
        if (control->identifier.empty())
            problems.push_back("a control has no identifier: " + accessibility::nameOf(*control));
        else if (!identifiers.insert(control->identifier).second)
            problems.push_back("two controls are called " + control->identifier);
    }
}

// One plan is chosen as long as there is one, and can be bought.
void addAboutPlans(const SemanticNode& tree, std::vector<std::string>& problems) {
    int plans = 0, chosen = 0;
    for (const SemanticNode* control : accessibility::controls(tree)) {
        if (!control->identifier.starts_with("plan.")) continue;
        ++plans;
        chosen += contains(control->traits, Traits::selected);
    }
    const SemanticNode* const subscribe = accessibility::findByIdentifier(tree, "subscribe");
    if (!subscribe) return;
    if (chosen != (plans > 0)) problems.push_back(std::to_string(chosen) + " of " + std::to_string(plans) + " plans are chosen");
    if (contains(subscribe->traits, Traits::disabled) != (plans == 0))
        problems.push_back("the subscribe button is enabled without a plan, or disabled with one");
}

} // namespace

void Visitor::note(std::string deed) {
    m_deeds.push_back(std::to_string(m_stage.bed().now_s()) + " s: " + std::move(deed));
    if (m_deeds.size() > rememberedDeeds) m_deeds.pop_front();
}

std::string Visitor::lastDeeds() const {
    std::string text;
    for (const std::string& deed : m_deeds) text += "  " + deed + "\n";
    return text;
}

geometry::Point Visitor::place() {
    const geometry::Size size = m_stage.window().frame().size;
    const double x = size.width * below(1000) / 1000.0;
    return {x, size.height * below(1000) / 1000.0};
}

void Visitor::act() {
    m_hasMovedFocus = false;
    if (!m_stage.entry()) {
        note("present");
        m_stage.present();
        return m_stage.bed().runFor(1);
    }
    switch (below(20)) {
    case 0:
    case 1:
    case 2:
    case 3: return tap();
    case 4: return drag();
    case 5:
    case 6:
    case 7:
    case 8: return press();
    case 9:
    case 10:
    case 11: return operate();
    case 12:
    case 13: return scroll();
    case 14: return resize();
    case 15: return setTraits();
    case 16: return setOffers();
    case 17: return openStore();
    default: return wait();
    }
}

void Visitor::tap() {
    const geometry::Point where = place();
    note("tap " + textOf(where));
    m_stage.window().touch({host::TouchPhase::began, where, m_stage.bed().now_s()});
    m_stage.window().touch({host::TouchPhase::ended, where, m_stage.bed().now_s()});
    m_stage.bed().settle();
}

void Visitor::drag() {
    const geometry::Point from = place(), to = place();
    note("drag " + textOf(from) + " to " + textOf(to));
    constexpr int steps = 4;
    constexpr double step_s = 1.0 / 60;
    m_stage.window().touch({host::TouchPhase::began, from, m_stage.bed().now_s()});
    for (int step = 1; step <= steps; ++step) {
        m_stage.bed().runFor(step_s);
        const double way = double(step) / steps;
        m_stage.window().touch(
            {host::TouchPhase::moved, {from.x + (to.x - from.x) * way, from.y + (to.y - from.y) * way}, m_stage.bed().now_s()});
    }
    const auto end = below(4) ? host::TouchPhase::ended : host::TouchPhase::cancelled;
    m_stage.window().touch({end, to, m_stage.bed().now_s()});
    m_stage.bed().settle();
}

void Visitor::press() {
    // Every other key is Tab, so that others find something in focus.
    const host::Key key = tosses() ? host::Key::tab : host::Key(below(int(host::Key::end) + 1));
    note("key " + std::to_string(int(key)));
    m_stage.window().key(key, below(8) == 0);
    m_stage.bed().settle();
    m_hasMovedFocus = key == host::Key::tab || key == host::Key::backTab;
}

void Visitor::operate() {
    const ReadingElement reading = m_stage.window().reading();
    const auto elements = accessibility::elementsOf(reading);
    if (elements.empty()) return;
    const ReadingElement& element = *elements[std::size_t(below(int(elements.size())))];
    const int kind = below(4);
    note("operate " + element.identifier + " by " + std::to_string(kind));
    if (kind == 0 && element.activate) element.activate();
    if (kind == 1 && element.adjust) element.adjust(tosses() ? 1 : -1);
    if (kind == 2 && element.revealWhole) element.revealWhole();
    if (kind == 3 && element.focus) element.focus();
    m_stage.bed().settle();
}

void Visitor::scroll() {
    const geometry::Point where = place();
    const geometry::Point delta{double(below(200) - 100), double(below(4000) - 2000)};
    note("scroll at " + textOf(where) + " by " + textOf(delta));
    m_stage.window().scroll(where, delta);
    m_stage.bed().settle();
}

void Visitor::resize() {
    // From a small telephone on its side.
    const geometry::Size size{320.0 + below(1200), 320.0 + below(1200)};
    note("resize " + std::to_string(size.width) + " x " + std::to_string(size.height));
    const double edge = below(2) * 34.0;
    m_stage.window().setSize(size, {edge, 0, edge, 0});
    m_stage.bed().settle();
}

void Visitor::setTraits() {
    uikit::UITraitCollection traits = m_stage.window().traits();
    traits.userInterfaceStyle = tosses() ? graphics::ColorScheme::dark : graphics::ColorScheme::light;
    traits.layoutDirection = tosses() ? geometry::LayoutDirection::rightToLeft : geometry::LayoutDirection::leftToRight;
    traits.preferredContentSizeCategory = graphics::ContentSizeCategory(below(12));
    traits.reduceMotion = below(4) == 0;
    note("traits " + std::to_string(int(traits.userInterfaceStyle)) + std::to_string(int(traits.layoutDirection)) + " " +
         std::to_string(int(traits.preferredContentSizeCategory)) + " " + std::to_string(traits.reduceMotion));
    m_stage.window().setTraits(traits);
    m_stage.bed().settle();
}

void Visitor::setOffers() {
    const auto entry = m_stage.entry();
    const int number = below(100);
    note("offers " + std::to_string(number));
    if (tosses()) entry->setOptions(plansOf(number < 20 ? 0 : number));
    if (tosses())
        entry->setAnnualSubscriptionPriceForComparisonWithPromotionalPrice(tosses() ? std::optional("$" + std::to_string(number))
                                                                                    : std::nullopt);
    if (tosses())
        entry->setMonthlySubscriptionPriceForComparisonWithPromotionalPrice(tosses() ? std::optional<std::string>("$9")
                                                                                     : std::nullopt);
    m_stage.bed().settle();
}

void Visitor::wait() {
    const double duration_s = below(200) / 100.0;
    note("wait " + std::to_string(duration_s));
    m_stage.bed().runFor(duration_s);
}

void Visitor::openStore() {
    note("store");
    m_stage.sendWhatIsPro();
    m_stage.bed().settle();
}

std::vector<std::string> Visitor::problems() {
    std::vector<std::string> problems;
    const SemanticNode tree = m_stage.window().semanticTree();
    addUnsound(tree, problems);
    addAboutControls(tree, problems);
    addAboutPlans(tree, problems);
    const ReadingElement reading = m_stage.window().reading();
    int focused = 0;
    for (const ReadingElement* element : accessibility::elementsOf(reading)) {
        if (!element->isFocused) continue;
        if (++focused > 1) problems.push_back(element->identifier + " is in focus besides another element");
        if (element->isDisabled) problems.push_back(element->identifier + " is in focus and disabled");
        const geometry::Rect window{{}, m_stage.window().frame().size};
        const bool isInSight = element->isOnScreen && !element->plate.intersection(window).isEmpty();
        if (m_hasMovedFocus && !m_stage.window().isTransitioning() && !isInSight)
            problems.push_back(element->identifier + " has come into focus out of sight: at " + textOf(element->plate) + " of " +
                               textOf(window) + (element->isOnScreen ? "" : ", hidden"));
    }
    return problems;
}

} // namespace proupsells::soak
