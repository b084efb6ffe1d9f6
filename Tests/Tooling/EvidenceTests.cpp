#include <gmock/gmock.h>

#include "Tooling/Evidence.hpp"

namespace proupsells::tooling {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

// Not a good one, and one that tells two documents apart.
std::string lengthAndSum(std::string_view bytes) {
    std::size_t sum = 0;
    for (const char c : bytes) sum = sum * 31 + static_cast<unsigned char>(c);
    return std::to_string(bytes.size()) + "-" + std::to_string(sum);
}

EvidenceDocument documentOf(const Evidence& evidence) { return evidenceDocument(evidence, "length and sum", lengthAndSum); }

Evidence purchase() {
    EvidenceScreen screen{.name = "Choose Your Plan", .png = "picture", .size = {375, 800}, .texts = {}};
    screen.texts.push_back({.parts = {{"$119.99", true}, {" $99.99 & more", false}},
                            .identifier = "plan.yearly",
                            .frame = {{16, 20.5}, {343, 22}},
                            .size = 17,
                            .contrast = 4.57});
    screen.texts.push_back({.parts = {{"<Terms>", false}}, .identifier = {}, .frame = {}, .size = 12, .contrast = {}});
    Evidence evidence{.facts = {{"Language", "en_US"}}, .offers = {{{"price", "$99.99"}}}, .moments = {}};
    evidence.moments.push_back({.time_s = 0.5, .screen = screen});
    evidence.moments.push_back(
        {.time_s = 2, .did = R"({"tap":"Subscribe"})", .calls = {"called"}, .isAgreement = true, .isShowing = false});
    return evidence;
}

TEST(Evidence, HasEveryTextWordByWordWithItsPlaceSizeAndContrast) {
    const std::string html = documentOf(purchase()).html;
    EXPECT_THAT(html,
                HasSubstr("<td><s>$119.99</s> $99.99 &amp; more</td><td>plan.yearly</td><td class=\"number\">16 20.5 343 22</td>"
                          "<td class=\"number\">17</td><td class=\"number\">4.5:1</td>"));
    EXPECT_THAT(html, HasSubstr("<td>&lt;Terms&gt;</td><td></td><td class=\"number\">0 0 0 0</td><td class=\"number\">12</td>"
                                "<td class=\"number\">out of sight</td>"));
    EXPECT_THAT(html, HasSubstr("src=\"data:image/png;base64,cGljdHVyZQ==\""));
}

TEST(Evidence, SaysWhatWasDoneWhatCameOfItAndWhereTheCustomerAgreed) {
    const std::string html = documentOf(purchase()).html;
    EXPECT_THAT(
        html, HasSubstr("<section class=\"moment agreed\">\n<h3>2 s: <code>{&quot;tap&quot;:&quot;Subscribe&quot;}</code></h3>\n"));
    EXPECT_THAT(html, HasSubstr("<p><code>called</code></p>\n<p class=\"soft\">The screen has gone.</p>"));
}

TEST(Evidence, HasADigestOfAllThatFollowsItsSecondLine) {
    const EvidenceDocument document = documentOf(purchase());
    EXPECT_THAT(document.html, StartsWith("<!DOCTYPE html>\n<!-- length and sum: " + document.digest + " -->\n<html"));
    const std::size_t second = document.html.find('\n', document.html.find('\n') + 1) + 1;
    EXPECT_EQ(lengthAndSum(document.html.substr(second)), document.digest);
    EXPECT_EQ(documentOf(purchase()).html, document.html);

    Evidence other = purchase();
    other.moments.front().screen->texts.front().parts.front().first = "$119.98";
    EXPECT_NE(documentOf(other).digest, document.digest);
}

} // namespace
} // namespace proupsells::tooling
