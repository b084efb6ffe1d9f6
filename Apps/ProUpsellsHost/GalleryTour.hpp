// Shows one screen on one device, and stops at every moment that is worth a picture.
#pragma once

#include <functional>
#include <optional>
#include <set>
#include <sstream>
#include <string>

#include "Apps/ProUpsellsHost/HostSession.hpp"
#include "Tooling/Driver.hpp"

namespace proupsells::hostprogram {

// What it shows at a moment depends on the offers and the device alone, not on what was shown before: each tour has a session and a
// clock of its own.
class GalleryTour {
public:
    // Called while the window shows the moment; each has another name.
    using Visit = std::function<void(const std::string& moment, uikit::UIWindow& window)>;

    GalleryTour(StartScreen screen, const Offers& offers, const Device& device);

    // Once.
    void run(const Visit& visit);

private:
    // Each page of the header and the way between two, each plan, and the end of the page.
    void visitPaywall();
    // All categories open, and each of them in sight; all closed; the first one on its way.
    void visitComparison();
    // Each shelf in sight, and the pictures as they drift.
    void visitStore();

    void visit(const std::string& moment);
    // What is below the fold, a page at a time.
    void visitFurtherDown();
    void visitEnd();
    void visitPlans();
    void visitPages();
    void visitEach(const std::string& prefix, const std::string& moment);
    void visitRestOf(const std::string& identifier, const std::string& moment);

    accessibility::ReadingElement reading() { return m_session.window().reading(); }
    // With all that stands in it; absent where nothing has the identifier.
    std::optional<accessibility::SemanticNode> find(const std::string& identifier);
    // Opens or closes all that can be.
    void setExpanded(bool isExpanded);
    // False where there is none left to do it with.
    bool toggleFirst(bool isExpanded);
    // From 1; 0 where there are no pages.
    int page();
    void turnPage();
    // Holds what moves by itself.
    void restOnPages();

    StartScreen m_screen;
    std::ostringstream m_discarded;
    runloop::MainRunLoop m_loop;
    HostSession m_session;
    tooling::Driver m_driver;
    const Visit* m_visit = nullptr;
    std::set<std::string> m_visited;
};

} // namespace proupsells::hostprogram
