#include "Tooling/ScreenAudit.hpp"

#include <algorithm>
#include <cmath>

#include "Platform/Foundation/Ascii.hpp"
#include "Platform/Graphics/Contrast.hpp"
#include "Platform/VelaUIKit/DesignColors.hpp"
#include "Tooling/Quoted.hpp"

namespace proupsells::tooling {

using accessibility::SemanticNode;
using foundation::PseudoLanguage;
using geometry::Rect;

namespace {

// Less is a matter of rounding.
constexpr double tolerance = 0.5;

std::string points(double length) {
    const auto tenths = std::lround(length * 10);
    return std::to_string(tenths / 10) + (tenths % 10 ? "." + std::to_string(tenths % 10) : "");
}

bool isVisible(const SemanticNode& node) { return node.opacity > 0; }

std::string description(const SemanticNode& node) {
    std::string result = node.type;
    if (!node.identifier.empty()) result += " " + node.identifier;
    if (node.text) result += " " + inQuotes(node.text->text);
    return result;
}

struct Text {
    const SemanticNode* node;
    std::string path;
    std::string identifier;         // the nearest
    const SemanticNode* scrollView; // the innermost around it; null for none
    std::string backdrop;           // the colour behind it; empty on a picture
    bool isDisabled;
};

struct Control {
    const SemanticNode* node;
    std::string path;
    const SemanticNode* scrollView;
};

// What the nodes inside of one have in common.
struct Around {
    std::string path, identifier;
    const SemanticNode* scrollView = nullptr;
    bool isDisabled = false;
};

// What stands behind the nodes that follow.
struct Backdrop {
    Rect frame;
    std::string color; // empty for a picture
};

// Walks a tree as it is painted, and keeps what the rules are about.
class Survey {
public:
    explicit Survey(const SemanticNode& screen) { add(screen, {}); }

    std::vector<Text> texts;
    std::vector<Control> controls;

private:
    void add(const SemanticNode& node, Around around) {
        if (!isVisible(node)) return;
        around.isDisabled = around.isDisabled || contains(node.traits, accessibility::Traits::disabled);
        if (!node.identifier.empty()) around.identifier = node.identifier;
        addBackdrop(node);
        if (node.text)
            texts.push_back({&node, around.path, around.identifier, around.scrollView, backdropOf(node), around.isDisabled});
        if (node.isControl) controls.push_back({&node, around.path, around.scrollView});
        if (node.scroll) around.scrollView = &node;
        const std::string path = around.path.empty() ? "" : around.path + ".";
        for (std::size_t i = 0; i < node.children.size(); ++i) {
            around.path = path + std::to_string(i);
            add(node.children[i], around);
        }
    }

    void addBackdrop(const SemanticNode& node) {
        if (!node.image.empty()) m_backdrops.push_back({node.frame, ""});
        if (node.shape && !node.shape->fill.empty() && node.shape->fill != graphics::Color::clear.name)
            m_backdrops.push_back({node.frame, node.shape->fill});
    }

    std::string backdropOf(const SemanticNode& node) const {
        const auto behind = std::find_if(m_backdrops.rbegin(), m_backdrops.rend(),
                                         [&](const Backdrop& backdrop) { return backdrop.frame.contains(node.frame.center()); });
        return behind == m_backdrops.rend() ? std::string() : behind->color;
    }

    std::vector<Backdrop> m_backdrops; // back to front
};

class Auditor {
public:
    Auditor(const SemanticNode& screen, const AuditOptions& options) : m_screen(screen), m_options(options), m_survey(screen) {}

    std::vector<Finding> findings() {
        for (const Text& text : m_survey.texts) {
            if (text.node->text->isTruncated) add(AuditRule::truncated, text, "is cut off");
            holdInside(text);
            holdReachable(*text.node, text.path, text.identifier, text.scrollView);
            if (m_options.pseudoLanguage && !isPseudoTranslated(text.node->text->text, *m_options.pseudoLanguage))
                add(AuditRule::untranslated, text, "is in English");
            if (!text.isDisabled && !text.backdrop.empty()) holdContrast(text);
        }
        for (std::size_t i = 0; i < m_survey.texts.size(); ++i)
            for (std::size_t k = 0; k < i; ++k) holdApart(m_survey.texts[k], m_survey.texts[i]);
        for (const Control& control : m_survey.controls) {
            holdLarge(control);
            holdReachable(*control.node, control.path, control.node->identifier, control.scrollView);
        }
        std::stable_sort(m_findings.begin(), m_findings.end(), [](const Finding& a, const Finding& b) { return a.rule < b.rule; });
        return std::move(m_findings);
    }

private:
    void add(AuditRule rule, const Text& text, const std::string& what) {
        m_findings.push_back({rule, text.path, description(*text.node) + " " + what, text.identifier});
    }

    // Something of it can come between the top and the bottom of what scrolls it, or of the screen.
    void holdReachable(const SemanticNode& node, const std::string& path, const std::string& identifier,
                       const SemanticNode* scrollView) {
        double top = m_screen.frame.minY(), bottom = m_screen.frame.maxY();
        if (scrollView) {
            const accessibility::ScrollInfo& scroll = *scrollView->scroll;
            top = scrollView->frame.minY() - scroll.contentOffset.y - scroll.contentInset.top;
            bottom = scrollView->frame.minY() - scroll.contentOffset.y +
                     std::max(scroll.contentSize.height, scrollView->frame.height()) + scroll.contentInset.bottom;
        }
        const double out = std::max(top - node.frame.minY(), node.frame.maxY() - bottom);
        if (out <= tolerance || node.frame.isEmpty()) return;
        m_findings.push_back({AuditRule::unreachable, path,
                              description(node) + " is out of reach by " + points(out) + " points of its height", identifier});
    }

    void holdInside(const Text& text) {
        const Rect &frame = text.node->frame, &screen = m_screen.frame;
        const double out = std::max(screen.minX() - frame.minX(), frame.maxX() - screen.maxX());
        if (out > tolerance) add(AuditRule::outside, text, "leaves the screen by " + points(out) + " points");
    }

    void holdApart(const Text& below, const Text& above) {
        if (below.scrollView != above.scrollView) return;
        const Rect shared = below.node->frame.intersection(above.node->frame);
        if (shared.width() <= tolerance || shared.height() <= tolerance) return;
        add(AuditRule::overlapping, above,
            "stands on " + inQuotes(below.node->text->text) + ", " + points(shared.width()) + " x " + points(shared.height()) +
                " points");
    }

    bool isSmall(const SemanticNode& control) const {
        return std::min(control.frame.width(), control.frame.height()) < m_options.leastControl - tolerance;
    }

    // WCAG 2.2, 2.5.8: a small control may have a circle of the least size to itself, around its centre.
    bool isTooNear(const SemanticNode& small, const SemanticNode& other) const {
        const geometry::Point center = small.frame.center();
        const Rect &frame = other.frame, middle{frame.center(), {}};
        const bool isOtherSmall = isSmall(other);
        const Rect& near = isOtherSmall ? middle : frame;
        const double across = std::max({near.minX() - center.x, center.x - near.maxX(), 0.0});
        const double down = std::max({near.minY() - center.y, center.y - near.maxY(), 0.0});
        return std::hypot(across, down) < (isOtherSmall ? 1 : 0.5) * m_options.leastControl - tolerance;
    }

    void holdLarge(const Control& control) {
        const geometry::Size size = control.node->frame.size;
        const std::string measured =
            description(*control.node) + " is " + points(size.width) + " x " + points(size.height) + " points";
        const auto add = [&](AuditRule rule, const std::string& what) {
            m_findings.push_back({rule, control.path, what, control.node->identifier});
        };
        const auto other = std::find_if(m_survey.controls.begin(), m_survey.controls.end(), [&](const Control& each) {
            return each.node != control.node && isSmall(*control.node) && isTooNear(*control.node, *each.node);
        });
        if (other != m_survey.controls.end())
            return add(AuditRule::smallControl, measured + " beside " + description(*other->node));
        const geometry::Size target = targetOf(*control.node);
        if (std::min(target.width, target.height) < m_options.leastTarget - tolerance)
            add(AuditRule::smallTarget,
                measured + " and can be touched in " + points(target.width) + " x " + points(target.height));
    }

    // How much of it can be touched: what reaches out around the frame, as far as no other control is nearer.
    geometry::Size targetOf(const SemanticNode& control) const {
        const Rect& frame = control.frame;
        const double wide = std::max(0.0, control.leastTarget - frame.width()) / 2,
                     high = std::max(0.0, control.leastTarget - frame.height()) / 2;
        double left = wide, right = wide, up = high, down = high;
        for (const Control& each : m_survey.controls) {
            const Rect& other = each.node->frame;
            if (each.node == &control || other.isEmpty() || other.intersects(frame)) continue;
            const bool isBeside = other.minY() < frame.maxY() && other.maxY() > frame.minY();
            const bool isAboveOrBelow = other.minX() < frame.maxX() && other.maxX() > frame.minX();
            if (isBeside && other.minX() >= frame.maxX()) right = std::min(right, (other.minX() - frame.maxX()) / 2);
            if (isBeside && other.maxX() <= frame.minX()) left = std::min(left, (frame.minX() - other.maxX()) / 2);
            if (isAboveOrBelow && other.minY() >= frame.maxY()) down = std::min(down, (other.minY() - frame.maxY()) / 2);
            if (isAboveOrBelow && other.maxY() <= frame.minY()) up = std::min(up, (frame.minY() - other.maxY()) / 2);
        }
        return {frame.width() + left + right, frame.height() + up + down};
    }

    void holdContrast(const Text& text) {
        std::vector<std::string> colors;
        for (const accessibility::TextRunInfo& run : text.node->text->runs) colors.push_back(run.color);
        if (colors.empty()) colors.push_back(text.node->text->color);
        std::sort(colors.begin(), colors.end());
        colors.erase(std::unique(colors.begin(), colors.end()), colors.end());
        for (const std::string& color : colors) holdContrast(text, color);
    }

    void holdContrast(const Text& text, const std::string& color) {
        constexpr double least = 4.5; // WCAG 2.2, level AA
        const velauikit::DesignColor *front = velauikit::findDesignColor(color), *back = velauikit::findDesignColor(text.backdrop);
        if (!front || !back) return add(AuditRule::unknownColor, text, "is " + color + " on " + text.backdrop);
        const double contrast = graphics::contrast(front->color.resolved(m_options.scheme), back->color.resolved(m_options.scheme));
        if (contrast >= least) return;
        add(AuditRule::faint, text, "is " + color + " on " + text.backdrop + ", " + points(contrast) + ":1");
    }

    const SemanticNode& m_screen;
    const AuditOptions& m_options;
    Survey m_survey;
    std::vector<Finding> m_findings;
};

// The text without what stands between the marks, which may stand in each other.
std::string outsideOf(std::string_view opening, std::string_view closing, std::string_view text) {
    std::string outside;
    for (std::size_t at = 0, depth = 0; at < text.size();) {
        const std::string_view rest = text.substr(at);
        if (rest.starts_with(opening)) {
            ++depth;
            at += opening.size();
        } else if (depth > 0 && rest.starts_with(closing)) {
            --depth;
            at += closing.size();
        } else {
            if (depth == 0) outside += rest.front();
            ++at;
        }
    }
    return outside;
}

} // namespace

bool isPseudoTranslated(std::string_view text, PseudoLanguage language) {
    const std::string rest = language == PseudoLanguage::accented ? outsideOf("[", "]", text) : outsideOf("\u202E", "\u202C", text);
    return std::none_of(rest.begin(), rest.end(), [](char c) { return foundation::asciiLower(c) != foundation::asciiUpper(c); });
}

std::vector<Finding> audit(const SemanticNode& screen, const AuditOptions& options) { return Auditor(screen, options).findings(); }

} // namespace proupsells::tooling
