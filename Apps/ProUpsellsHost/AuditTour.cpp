#include "Apps/ProUpsellsHost/AuditTour.hpp"

#include "Backends/Raster/PictureColor.hpp"
#include "Platform/Accessibility/Search.hpp"
#include "Platform/Foundation/Locale.hpp"
#include "Tooling/PaintedAudit.hpp"
#include "Tooling/SteeringAudit.hpp"

namespace proupsells::hostprogram {

using accessibility::SemanticNode;
using graphics::ColorScheme;
using graphics::ContentSizeCategory;

namespace {

// Of what was painted last, at a pixel a point.
tooling::ColorAt colorsOf(const rasterbackend::RasterSurface& surface) {
    return [&picture = surface.picture()](geometry::Point point) { return rasterbackend::colorAt(picture, point); };
}

double sumOfOffsets(const SemanticNode& node) {
    double sum = node.scroll ? node.scroll->contentOffset.y : 0;
    for (const SemanticNode& child : node.children) sum += sumOfOffsets(child);
    return sum;
}

std::optional<foundation::PseudoLanguage> pseudoLanguage() {
    return foundation::pseudoLanguageOf(foundation::Locale::current().languageTag());
}

// Calls `visit` with each text that can be seen, its path, and the nearest identifier.
template <class Visit>
void forEachText(const SemanticNode& node, const std::string& path, std::string identifier, const Visit& visit) {
    if (node.opacity == 0) return;
    if (!node.identifier.empty()) identifier = node.identifier;
    if (node.text) visit(*node.text, path, identifier);
    for (std::size_t i = 0; i < node.children.size(); ++i)
        forEachText(node.children[i], (path.empty() ? "" : path + ".") + std::to_string(i), identifier, visit);
}

} // namespace

void ScreenInspector::lookAtTree(const std::string& screen, const SemanticNode& tree, std::span<const ColorScheme> appearances) {
    tooling::AuditOptions options{.pseudoLanguage = pseudoLanguage()};
    Device device = m_session.device();
    for (const ColorScheme appearance : appearances) {
        options.scheme = device.appearance = appearance;
        m_ledger.begin(device);
        for (const auto& finding : tooling::audit(tree, options)) m_ledger.add(screen, finding);
    }
    m_ledger.begin(m_session.device());
}

void ScreenInspector::listen(const std::string& screen) {
    const tooling::AuditOptions options{.pseudoLanguage = pseudoLanguage()};
    for (const auto& finding : tooling::audit(m_session.window().reading(), options)) m_ledger.add(screen, finding);
}

bool ScreenInspector::lookAtPainting(const std::string& screen, const SemanticNode& tree) {
    graphics::DisplayList list;
    m_session.window().paint(list);
    auto all = tooling::paintedTexts(list, tree);
    for (const auto& finding : tooling::auditWords(list, all)) m_ledger.add(screen, finding);

    const auto texts = tooling::textsOnPictures(list, std::move(all));
    if (texts.empty()) return false;
    const geometry::Size size = m_session.device().size;
    const graphics::DisplayList part = tooling::aroundTexts(list, texts);
    m_behind.present(tooling::withoutTexts(part), size, 1);
    m_shown.present(part, size, 1);
    for (const auto& finding : tooling::auditContrast(list, texts, {{}, size}, colorsOf(m_behind), colorsOf(m_shown)))
        m_ledger.add(screen, finding);
    return true;
}

void ScreenInspector::steer(const std::string& screen) {
    const tooling::Wait wait = [this](double duration_s) { m_driver.wait(duration_s); };
    for (const auto& finding : tooling::auditStates(m_session.window(), wait)) m_ledger.add(screen, finding);
    for (const auto& finding : tooling::auditKeyboard(m_session.window(), wait)) m_ledger.add(screen, finding);
}

AuditTour::AuditTour(StartScreen screen, const Offers& offers, const Device& device, AuditLedger& ledger)
    : m_screen(screen), m_name(wordFor(screen, startScreens)), m_ledger(ledger), m_device(device),
      m_loop(std::make_shared<runloop::VirtualClock>()),
      m_session(offers, device, {}, ffmpegbackend::Pace::exact, std::make_shared<EventLog>(m_discarded)),
      m_driver(m_loop, m_session.window()), m_inspector(m_session, m_driver, ledger) {
    m_session.present();
    m_driver.finishTransitions();
    open();
}

void AuditTour::run(const AuditMatrix& matrix) {
    for (const geometry::Size size : matrix.sizes) {
        m_textSizes.clear();
        for (const ContentSizeCategory textSize : matrix.textSizes) {
            set(size, textSize, matrix.appearances.front());
            look(matrix);
            const bool isAtAnEnd = textSize == matrix.textSizes.back() || textSize == ContentSizeCategory::large;
            if (size != matrix.sizes.front() || !isAtAnEnd) continue;
            // What is closed by itself as it comes into sight would not be told as pressed.
            setExpanded(false);
            m_inspector.steer(m_name);
        }
        holdTextSizes();
    }
}

// Each page of the header, and all that is further down. What comes into sight may close again. The store page has views only for
// what is in sight; the trees of the others are whole wherever they are scrolled to.
void AuditTour::look(const AuditMatrix& matrix) {
    goToTop();
    m_page = 0;
    turnPage();
    double furthest = sumOfOffsets(m_session.window().semanticTree());
    for (bool isNewTree = true;;) {
        setExpanded(true);
        const SemanticNode tree = m_session.window().semanticTree();
        if (isNewTree) {
            m_inspector.lookAtTree(m_name, tree, matrix.appearances);
            noteTextSizes(tree);
        }
        if (m_inspector.lookAtPainting(m_name, tree)) lookAtOtherAppearances(matrix, tree);

        if (turnPage()) continue;
        m_session.window().key(host::Key::pageDown);
        const double reached = sumOfOffsets(m_session.window().semanticTree());
        if (reached <= furthest) break;
        furthest = reached;
        isNewTree = m_screen == StartScreen::store;
    }
    m_inspector.listen(m_name);
}

void AuditTour::goToTop() { m_session.window().key(host::Key::home); }

// The layout is the same in every appearance; what is on pictures may be harder to read.
void AuditTour::lookAtOtherAppearances(const AuditMatrix& matrix, const SemanticNode& tree) {
    const ColorScheme usual = m_device.appearance;
    for (const ColorScheme appearance : matrix.appearances) {
        if (appearance == usual) continue;
        set(m_device.size, m_device.textSize, appearance);
        m_inspector.lookAtPainting(m_name, tree);
        set(m_device.size, m_device.textSize, usual);
    }
}

void AuditTour::set(geometry::Size size, ContentSizeCategory textSize, ColorScheme appearance) {
    m_device.size = size;
    m_device.textSize = textSize;
    m_device.appearance = appearance;
    m_session.setDevice(m_device);
    m_ledger.begin(m_device);
}

void AuditTour::open() {
    m_session.open(m_screen);
    m_driver.finishTransitions();
    const auto reading = m_session.window().reading();
    for (const auto* element : accessibility::elementsOf(reading))
        if (element->isOperable()) m_identifiers.insert(element->identifier);
}

void AuditTour::setExpanded(bool isExpanded) {
    const auto other = [&]() -> std::optional<std::function<void()>> {
        const auto reading = m_session.window().reading();
        for (const auto* element : accessibility::elementsOf(reading))
            if (element->isExpanded.value_or(isExpanded) != isExpanded && element->activate) return element->activate;
        return std::nullopt;
    };
    // Where one closes because another one has opened, there is no end of it.
    constexpr int mostPresses = 20;
    for (int press = 0; press < mostPresses; ++press) {
        const auto activate = other();
        if (!activate) return;
        (*activate)();
        m_driver.wait(1);
    }
}

// To the next page of a header, until all have been seen. It does not turn by itself while a pointer rests on it, and its title
// comes later than its picture.
bool AuditTour::turnPage() {
    const auto reading = m_session.window().reading();
    for (const auto* element : accessibility::elementsOf(reading)) {
        if (element->role != accessibility::Role::pager || !element->adjust || m_page >= element->count) continue;
        ++m_page;
        m_session.window().pointer(element->frame.center());
        element->adjust(element->position == element->count ? 1 - element->count : 1);
        constexpr double longEnough_s = 1.4;
        m_driver.wait(longEnough_s);
        return true;
    }
    return false;
}

void AuditTour::noteTextSizes(const SemanticNode& tree) {
    const ContentSizeCategory category = m_device.textSize;
    forEachText(tree, "", "", [&](const accessibility::TextInfo& text, const std::string& path, const std::string& identifier) {
        TextSizes& sizes = m_textSizes[identifier + "\n" + text.text];
        sizes.path = path;
        sizes.identifier = identifier;
        if (category == ContentSizeCategory::large) sizes.usual = std::max(sizes.usual, text.size);
        if (category > ContentSizeCategory::large) sizes.largest = std::max(sizes.largest, text.size);
    });
}

void AuditTour::holdTextSizes() {
    constexpr double rounding = 0.01;
    for (const auto& [key, sizes] : m_textSizes) {
        if (sizes.largest == 0 || sizes.largest > sizes.usual + rounding) continue;
        m_ledger.add(m_name, {tooling::AuditRule::fixedSize, sizes.path,
                              "Text \"" + key.substr(key.find('\n') + 1) + "\" is never larger than at the usual text size",
                              sizes.identifier});
    }
}

} // namespace proupsells::hostprogram
