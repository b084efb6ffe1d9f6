// What the fixed-metrics shaper knows about characters, by Unicode block.
#pragma once

namespace proupsells::headless {

// Ends a line and takes no room: line feed, carriage return, U+0085, U+2028, U+2029 and their like.
bool isParagraphEnd(char32_t character);
// Blanks at which a line may break; no-break spaces are not among them.
bool isBreakingSpace(char32_t character);
// Hyphens and dashes after which a line may break.
bool isHyphen(char32_t character);
bool isDigit(char32_t character);
// A Han, kana or Hangul character: a line may break before and after it.
bool isIdeograph(char32_t character);
// Punctuation that does not begin a line, or does not end one.
bool isClosing(char32_t character);
bool isOpening(char32_t character);
// A letter of an alphabet; those beyond U+1FFF are left out.
bool isLetter(char32_t character);

} // namespace proupsells::headless
