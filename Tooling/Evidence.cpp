#include "Tooling/Evidence.hpp"

#include "Tooling/Base64.hpp"
#include "Tooling/WrittenNumber.hpp"

namespace proupsells::tooling {

namespace {

constexpr std::string_view style = R"(
:root { color-scheme: light dark; --ink: #15181a; --soft: #5b6468; --line: #d9dee0; --ground: #fff; --agreed: #0a7a72; }
@media (prefers-color-scheme: dark) {
  :root { --ink: #f1f4f4; --soft: #a3adb0; --line: #333c3f; --ground: #101415; --agreed: #4fd1c5; }
}
body { margin: 0 auto; padding: 48px 24px; max-width: 960px; font: 15px/1.5 system-ui, sans-serif; color: var(--ink);
  background: var(--ground); }
h1 { font-size: 28px; line-height: 1.2; margin: 0 0 24px; }
h2 { font-size: 20px; margin: 48px 0 12px; }
h3 { font-size: 15px; margin: 0 0 8px; }
table { border-collapse: collapse; width: 100%; font-size: 13px; }
th, td { text-align: start; vertical-align: top; padding: 6px 12px 6px 0; border-bottom: 1px solid var(--line); }
th { color: var(--soft); font-weight: 600; }
th[scope=row] { width: 40%; }
td.number { white-space: nowrap; font-variant-numeric: tabular-nums; }
section.moment { margin: 32px 0; padding-top: 24px; border-top: 1px solid var(--line); }
section.agreed { border-top: 3px solid var(--agreed); }
section.agreed > h3 { color: var(--agreed); }
img { display: block; width: 280px; max-width: 100%; height: auto; border: 1px solid var(--line); border-radius: 12px; margin: 12px 0; }
code { font-size: 12px; overflow-wrap: anywhere; }
p.soft { color: var(--soft); }
)";

std::string inMarkup(std::string_view text) {
    std::string result;
    for (const char c : text) {
        switch (c) {
        case '&': result += "&amp;"; break;
        case '<': result += "&lt;"; break;
        case '>': result += "&gt;"; break;
        case '"': result += "&quot;"; break;
        default: result += c;
        }
    }
    return result;
}

std::string cell(const std::string& content, const char* kind = "") {
    return std::string("<td") + (*kind ? std::string(" class=\"") + kind + "\"" : "") + ">" + content + "</td>";
}

std::string factTable(const EvidenceFacts& facts) {
    std::string result = "<table>\n";
    for (const auto& [name, value] : facts)
        result += "<tr><th scope=\"row\">" + inMarkup(name) + "</th>" + cell(inMarkup(value)) + "</tr>\n";
    return result + "</table>\n";
}

std::string wordsOf(const EvidenceText& text) {
    std::string result;
    for (const auto& [part, isStruck] : text.parts) result += isStruck ? "<s>" + inMarkup(part) + "</s>" : inMarkup(part);
    return result;
}

std::string contrastText(const std::optional<double>& contrast) {
    if (!contrast) return "out of sight";
    const int tenths = int(*contrast * 10); // never better than it is
    return std::to_string(tenths / 10) + "." + std::to_string(tenths % 10) + ":1";
}

std::string screenSection(const EvidenceScreen& screen) {
    std::string result = "<img alt=\"" + inMarkup(screen.name) + "\" width=\"" + written(screen.size.width) + "\" height=\"" +
                         written(screen.size.height) + "\" src=\"data:image/png;base64," + base64Of(screen.png) + "\">\n";
    result += "<table>\n<tr><th scope=\"col\">Text, word by word</th><th scope=\"col\">Part of</th>"
              "<th scope=\"col\">Place: x y width height</th><th scope=\"col\">Size</th><th scope=\"col\">Contrast</th></tr>\n";
    for (const EvidenceText& text : screen.texts)
        result += "<tr>" + cell(wordsOf(text)) + cell(inMarkup(text.identifier)) + cell(written(text.frame), "number") +
                  cell(written(text.size), "number") + cell(contrastText(text.contrast), "number") + "</tr>\n";
    return result + "</table>\n";
}

std::string momentSection(const EvidenceMoment& moment) {
    std::string result = moment.isAgreement ? "<section class=\"moment agreed\">\n" : "<section class=\"moment\">\n";
    result += "<h3>" + written(moment.time_s) +
              " s: " + (moment.did.empty() ? "the screen stands" : "<code>" + inMarkup(moment.did) + "</code>") + "</h3>\n";
    if (moment.isAgreement) result += "<p>The customer agreed, to what the screen above this line said.</p>\n";
    for (const std::string& call : moment.calls) result += "<p><code>" + inMarkup(call) + "</code></p>\n";
    if (moment.screen)
        result += screenSection(*moment.screen);
    else
        result += std::string("<p class=\"soft\">") + (moment.isShowing ? "The screen has not changed." : "The screen has gone.") +
                  "</p>\n";
    return result + "</section>\n";
}

} // namespace

EvidenceDocument evidenceDocument(const Evidence& evidence, const std::string& digestName, const Digest& digest) {
    std::string body = "<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
                       "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
                       "<title>What was shown and agreed to</title>\n<style>" +
                       std::string(style) + "</style>\n</head>\n<body>\n<h1>What was shown and agreed to</h1>\n";
    body += "<p class=\"soft\">The second line of this file has the " + inMarkup(digestName) +
            " digest of all that follows it. <code>tail -n +3 FILE</code> shows what it was taken of.</p>\n";
    body += "<h2>Program and device</h2>\n" + factTable(evidence.facts) + "<h2>Offers</h2>\n";
    for (const EvidenceFacts& plan : evidence.offers) body += factTable(plan) + "<p></p>\n";
    body += "<h2>What happened</h2>\n";
    for (const EvidenceMoment& moment : evidence.moments) body += momentSection(moment);
    body += "</body>\n</html>\n";

    EvidenceDocument document{.html = {}, .digest = digest(body)};
    document.html = "<!DOCTYPE html>\n<!-- " + digestName + ": " + document.digest + " -->\n" + body;
    return document;
}

} // namespace proupsells::tooling
