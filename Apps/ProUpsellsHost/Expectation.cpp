#include "Apps/ProUpsellsHost/Expectation.hpp"

#include <cmath>
#include <set>

#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsHost/Numbers.hpp"
#include "Apps/ProUpsellsHost/ScreenDump.hpp"
#include "Platform/Accessibility/Search.hpp"

namespace proupsells::hostprogram {

namespace {

constexpr double frameTolerance = 0.01;

bool isClose(const geometry::Rect& a, const geometry::Rect& b) {
    const auto close = [](double x, double y) { return std::abs(x - y) <= frameTolerance + 1e-9; };
    return close(a.minX(), b.minX()) && close(a.minY(), b.minY()) && close(a.width(), b.width()) && close(a.height(), b.height());
}

// The node's text. When it has none, the texts inside it, with blanks between them.
std::string shownText(const accessibility::SemanticNode& node) {
    std::string result;
    for (const std::string& text : accessibility::shownTexts(node)) result += (result.empty() ? "" : " ") + text;
    return result;
}

std::string differs(const char* what, const Json& found, const Json& expected) {
    return std::string("its ") + what + " is " + found.dump() + ", expected " + expected.dump();
}

} // namespace

std::optional<std::string> contradiction(const ExpectStep& expected, const accessibility::SemanticNode& root) {
    const accessibility::SemanticNode* node = accessibility::findByIdentifier(root, expected.identifier);
    const std::string name = "\"" + expected.identifier + "\"";
    if (expected.isAbsent) return node ? std::optional(name + " is there, expected it to be absent") : std::nullopt;
    if (!node) return name + " is not there, expected it on the screen";

    const auto in = [&](std::string complaint) { return name + ": " + std::move(complaint); };
    if (expected.label && node->label != *expected.label) return in(differs("label", node->label, *expected.label));
    if (expected.value && node->value != *expected.value) return in(differs("value", node->value, *expected.value));
    if (expected.text && shownText(*node) != *expected.text) return in(differs("text", shownText(*node), *expected.text));
    if (expected.onScreen && node->isOnScreen != *expected.onScreen)
        return in(differs("onScreen", node->isOnScreen, *expected.onScreen));
    if (expected.traits) {
        const auto names = traitNames(node->traits);
        const std::multiset<std::string> found(names.begin(), names.end()),
            wanted(expected.traits->begin(), expected.traits->end());
        if (found != wanted) return in(differs("traits", found, wanted));
    }
    if (expected.frame && !isClose(node->frame, *expected.frame))
        return in(differs("frame", toJson(node->frame), toJson(*expected.frame)));
    return std::nullopt;
}

} // namespace proupsells::hostprogram
