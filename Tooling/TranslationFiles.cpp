#include "Tooling/TranslationFiles.hpp"

namespace proupsells::tooling {

namespace {

std::string quoted(std::string_view text) {
    std::string result = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') result += '\\';
        if (c == '\n')
            result += "\\n";
        else
            result += c;
    }
    return result + '"';
}

// A comment in a strings file ends at the first "*/".
std::string withoutEndOfComment(std::string_view text) {
    std::string result(text);
    for (std::size_t at = result.find("*/"); at != std::string::npos; at = result.find("*/", at)) result.insert(at + 1, " ");
    return result;
}

// Calls `heading` before the first text of each screen, and `entry` for every text.
template <class Heading, class Entry>
void forEachByScreen(std::span<const TranslatableText> texts, Heading heading, Entry entry) {
    std::string_view screen;
    for (const TranslatableText& text : texts) {
        if (text.screen != screen) heading(text.screen);
        screen = text.screen;
        entry(text);
    }
}

} // namespace

std::string stringsFile(std::span<const TranslatableText> texts) {
    std::string result =
        "/* Put your translation in the place of each text on the right. Keep %@, %1$@, %2$@, %% and ** as they are. */\n";
    forEachByScreen(
        texts, [&](std::string_view screen) { result.append("\n// --- ").append(screen).append(" ---\n\n"); },
        [&](const TranslatableText& text) {
            if (!text.comment.empty()) result += "/* " + withoutEndOfComment(text.comment) + " */\n";
            result += quoted(text.key) + " = " + quoted(text.key) + ";\n";
        });
    return result;
}

std::string potFile(std::span<const TranslatableText> texts) {
    std::string result = "msgid \"\"\n"
                         "msgstr \"\"\n"
                         "\"Content-Type: text/plain; charset=UTF-8\\n\"\n"
                         "\"Content-Transfer-Encoding: 8bit\\n\"\n";
    for (const TranslatableText& text : texts) {
        result.append("\n#. ").append(text.screen).append("\n");
        if (!text.comment.empty()) result.append("#. ").append(text.comment).append("\n");
        if (text.key.find('%') != std::string_view::npos) result += "#, objc-format\n";
        result += "msgid " + quoted(text.key) + "\nmsgstr \"\"\n";
    }
    return result;
}

} // namespace proupsells::tooling
