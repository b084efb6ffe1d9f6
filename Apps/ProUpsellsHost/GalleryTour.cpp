#include "Apps/ProUpsellsHost/GalleryTour.hpp"

#include "Platform/Accessibility/Search.hpp"

namespace proupsells::hostprogram {

using accessibility::ReadingElement;
using accessibility::SemanticNode;

namespace {

// After a tap, until nothing moves on its account.
constexpr double rest_s = 1;
// After a page was turned to: its title comes later than its picture.
constexpr double turned_s = 2;

const ReadingElement* pagerIn(const ReadingElement& reading) {
    for (const auto* element : accessibility::elementsOf(reading))
        if (element->role == accessibility::Role::pager && element->adjust) return element;
    return nullptr;
}

// Calls `use` with each node, those of items without a view among them, in the order of the page.
template <class Use>
void forEachNode(const SemanticNode& node, const Use& use) {
    use(node);
    for (const auto* nodes : {&node.itemsBefore, &node.children, &node.itemsAfter})
        for (const SemanticNode& each : *nodes) forEachNode(each, use);
}

double scrolledDistance(const SemanticNode& node) {
    double sum = node.scroll ? node.scroll->contentOffset.y : 0;
    for (const SemanticNode& child : node.children) sum += scrolledDistance(child);
    return sum;
}

} // namespace

GalleryTour::GalleryTour(StartScreen screen, const Offers& offers, const Device& device)
    : m_screen(screen), m_loop(std::make_shared<runloop::VirtualClock>()),
      m_session(offers, device, {}, ffmpegbackend::Pace::exact, std::make_shared<EventLog>(m_discarded)),
      m_driver(m_loop, m_session.window()) {
    m_session.present();
    m_driver.finishTransitions();
    m_session.open(m_screen);
    m_driver.finishTransitions();
}

void GalleryTour::run(const Visit& visit) {
    m_visit = &visit;
    switch (m_screen) {
    case StartScreen::paywall: visitPaywall(); break;
    case StartScreen::comparison: visitComparison(); break;
    case StartScreen::store: visitStore(); break;
    }
}

void GalleryTour::visitPaywall() {
    restOnPages();
    m_driver.wait(rest_s);
    visit("page 1");
    visitPlans();
    visitPages();
    visitFurtherDown();
    visitEnd();
}

void GalleryTour::visitComparison() {
    visit("at first");
    setExpanded(true);
    visit("all open");
    visitEach("comparison.category.", "category ");
    visitEnd();
    m_session.window().key(host::Key::home);
    setExpanded(false);
    visit("all closed");
    constexpr double halfOpen_s = 0.15;
    if (!toggleFirst(true)) return;
    m_driver.wait(halfOpen_s);
    visit("opening");
}

void GalleryTour::visitStore() {
    visit("at first");
    constexpr double drifting_s = 4;
    m_driver.wait(drifting_s);
    visit("drifting");
    visitEach("store.shelf.", "shelf ");
    visitEnd();
}

void GalleryTour::visit(const std::string& moment) {
    if (m_visited.insert(moment).second) (*m_visit)(moment, m_session.window());
}

void GalleryTour::visitFurtherDown() {
    for (int part = 1;; ++part) {
        const double before = scrolledDistance(m_session.window().semanticTree());
        m_session.window().key(host::Key::pageDown);
        m_driver.wait(rest_s);
        if (scrolledDistance(m_session.window().semanticTree()) <= before) return;
        visit(part == 1 ? "further down" : "further down " + std::to_string(part));
    }
}

void GalleryTour::visitEnd() {
    m_session.window().key(host::Key::end);
    m_driver.wait(rest_s);
    visit("end");
}

// Those that are not chosen at first; that one is chosen again.
void GalleryTour::visitPlans() {
    std::string first;
    std::vector<std::string> others;
    const ReadingElement before = reading();
    for (const auto* element : accessibility::elementsOf(before)) {
        if (element->role != accessibility::Role::radioButton || !element->activate) continue;
        if (element->isChecked == true)
            first = element->identifier;
        else
            others.push_back(element->identifier);
    }
    const auto choose = [this](const std::string& identifier) {
        const ReadingElement now = reading();
        for (const auto* element : accessibility::elementsOf(now)) {
            if (element->identifier != identifier || !element->activate) continue;
            element->activate();
            break;
        }
        m_driver.wait(rest_s);
    };
    for (const std::string& identifier : others) {
        constexpr std::string_view prefix = "plan.";
        choose(identifier);
        visit("plan " + identifier.substr(identifier.starts_with(prefix) ? prefix.size() : 0));
    }
    if (!first.empty()) choose(first);
}

void GalleryTour::visitPages() {
    const ReadingElement before = reading();
    const auto* const pager = pagerIn(before);
    if (!pager) return;

    // The first one goes by itself.
    m_session.window().pointer(std::nullopt);
    constexpr double step_s = 0.1, longest_s = 12, halfWay_s = 1;
    for (double waited_s = 0; page() == 1 && waited_s < longest_s; waited_s += step_s) m_driver.wait(step_s);
    m_driver.wait(halfWay_s);
    visit("turning");
    restOnPages();
    m_driver.wait(turned_s);
    for (int shown = 2; shown <= pager->count; ++shown) {
        if (page() < shown) turnPage();
        visit("page " + std::to_string(shown));
    }
}

void GalleryTour::visitEach(const std::string& prefix, const std::string& moment) {
    std::vector<std::string> identifiers;
    forEachNode(m_session.window().semanticTree(), [&](const SemanticNode& node) {
        if (node.identifier.starts_with(prefix)) identifiers.push_back(node.identifier);
    });
    for (const std::string& identifier : identifiers) {
        const std::string name = moment + identifier.substr(prefix.size());
        if (const auto node = find(identifier); node && node->revealWhole) node->revealWhole();
        m_driver.wait(rest_s);
        visit(name);
        visitRestOf(identifier, name);
    }
}

// What is higher than the window, a part at a time.
void GalleryTour::visitRestOf(const std::string& identifier, const std::string& moment) {
    const geometry::Size size = m_session.device().size;
    const double step = 0.6 * size.height, lowest = 0.8 * size.height; // bars stand on the window's ends
    auto node = find(identifier);
    if (!node || node->frame.size.height <= lowest) return;
    for (int part = 2; node->frame.maxY() > lowest; ++part) {
        m_session.window().scroll({size.width / 2, size.height / 2}, {0, std::min(step, node->frame.maxY() - lowest)});
        m_driver.wait(rest_s);
        const double before = node->frame.minY();
        node = find(identifier);
        if (!node || node->frame.minY() >= before) return;
        visit(moment + " " + std::to_string(part));
    }
}

std::optional<SemanticNode> GalleryTour::find(const std::string& identifier) {
    std::optional<SemanticNode> found;
    const SemanticNode tree = m_session.window().semanticTree();
    forEachNode(tree, [&](const SemanticNode& node) {
        if (node.identifier == identifier) found = node;
    });
    return found;
}

void GalleryTour::setExpanded(bool isExpanded) {
    while (toggleFirst(isExpanded)) m_driver.wait(rest_s);
}

bool GalleryTour::toggleFirst(bool isExpanded) {
    const ReadingElement now = reading();
    for (const auto* element : accessibility::elementsOf(now)) {
        if (element->isExpanded.value_or(isExpanded) == isExpanded || !element->activate) continue;
        element->activate();
        return true;
    }
    return false;
}

int GalleryTour::page() {
    const ReadingElement now = reading();
    const auto* const pager = pagerIn(now);
    return pager ? pager->position : 0;
}

void GalleryTour::turnPage() {
    const ReadingElement now = reading();
    if (const auto* const pager = pagerIn(now)) pager->adjust(1);
    m_driver.wait(turned_s);
}

void GalleryTour::restOnPages() {
    const ReadingElement now = reading();
    if (const auto* const pager = pagerIn(now)) m_session.window().pointer(pager->frame.center());
}

} // namespace proupsells::hostprogram
