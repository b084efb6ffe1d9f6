// The part of the Unicode bidirectional algorithm that looks at neighbouring characters.
#pragma once

#include <QChar>
#include <cstdint>
#include <vector>

namespace proupsells::qtbackend {

// A character of a paragraph while its level is being found.
struct BidiCharacter {
    char32_t value = 0;
    QChar::Direction original = QChar::DirL;
    QChar::Direction direction = QChar::DirL; // after the rules applied so far
    std::uint8_t level = 0;
};

// Characters of one level that are neighbours once the isolates between them are left out.
struct BidiSequence {
    std::vector<std::size_t> indexes;                           // of the paragraph's characters
    QChar::Direction before = QChar::DirL, after = QChar::DirL; // L or R, of what surrounds it

    // Resolves weak and neutral characters (rules W1 to N2) and raises the levels (I1 and I2).
    void resolve(std::vector<BidiCharacter>& characters) const;
};

} // namespace proupsells::qtbackend
