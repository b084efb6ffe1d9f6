// Characters that need no rules to be told apart.
#pragma once

namespace proupsells::foundation {

// Whether a user-perceived character ends before and after this one, among others of its kind: Latin letters, punctuation and
// currency signs. Not so a carriage return, which its line feed belongs to.
constexpr bool isPlainCharacter(char32_t c) {
    return (c < 0x300 && c != U'\r') || (c >= 0x2010 && c <= 0x2027) || (c >= 0x20A0 && c <= 0x20BF);
}

} // namespace proupsells::foundation
