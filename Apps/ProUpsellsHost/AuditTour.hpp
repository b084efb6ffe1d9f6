// Shows screens in one language, and looks at all of them.
#pragma once

#include <map>
#include <set>
#include <span>
#include <sstream>
#include <string>

#include "Apps/ProUpsellsHost/AuditLedger.hpp"
#include "Apps/ProUpsellsHost/AuditMatrix.hpp"
#include "Apps/ProUpsellsHost/HostSession.hpp"
#include "Backends/Raster/RasterSurface.hpp"
#include "Tooling/Driver.hpp"

namespace proupsells::hostprogram {

// Looks at what a window shows.
class ScreenInspector {
public:
    ScreenInspector(HostSession& session, tooling::Driver& driver, AuditLedger& ledger)
        : m_session(session), m_driver(driver), m_ledger(ledger) {}

    // The whole tree, in each appearance: the layout is the same.
    void lookAtTree(const std::string& screen, const accessibility::SemanticNode& tree,
                    std::span<const graphics::ColorScheme> appearances);
    // What is told of the screen.
    void listen(const std::string& screen);
    // What is in sight. Returns whether there are texts on pictures, which another appearance may hide.
    bool lookAtPainting(const std::string& screen, const accessibility::SemanticNode& tree);
    // What keys and screen readers do. The focus and the scroll views are somewhere else afterwards.
    void steer(const std::string& screen);

private:
    HostSession& m_session;
    tooling::Driver& m_driver;
    AuditLedger& m_ledger;
    rasterbackend::RasterSurface m_behind, m_shown; // without texts, and with them
};

// One screen in every configuration of a language.
class AuditTour {
public:
    AuditTour(StartScreen screen, const Offers& offers, const Device& device, AuditLedger& ledger);

    void run(const AuditMatrix& matrix);
    // The controls' identifiers in the first configuration.
    const std::set<std::string>& identifiers() const { return m_identifiers; }

private:
    void open();
    // Opens or closes all that can be.
    void setExpanded(bool isExpanded);
    void look(const AuditMatrix& matrix);
    void goToTop();
    void lookAtOtherAppearances(const AuditMatrix& matrix, const accessibility::SemanticNode& tree);
    bool turnPage();
    void noteTextSizes(const accessibility::SemanticNode& tree);
    void holdTextSizes();
    void set(geometry::Size size, graphics::ContentSizeCategory textSize, graphics::ColorScheme appearance);

    struct TextSizes {
        double usual = 0, largest = 0; // points; 0 while unseen
        std::string path, identifier;
    };

    StartScreen m_screen;
    std::string m_name;
    AuditLedger& m_ledger;
    Device m_device;
    std::ostringstream m_discarded;
    runloop::MainRunLoop m_loop;
    HostSession m_session;
    tooling::Driver m_driver;
    ScreenInspector m_inspector;
    std::set<std::string> m_identifiers;
    std::map<std::string, TextSizes> m_textSizes;
    int m_page = 0; // how many of a header have been turned to
};

} // namespace proupsells::hostprogram
