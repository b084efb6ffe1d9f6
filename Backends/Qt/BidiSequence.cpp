#include "Backends/Qt/BidiSequence.hpp"

#include <algorithm>

namespace proupsells::qtbackend {

namespace {

using Direction = QChar::Direction;

bool isNeutral(Direction d) {
    return d == QChar::DirB || d == QChar::DirS || d == QChar::DirWS || d == QChar::DirON || d == QChar::DirLRI ||
           d == QChar::DirRLI || d == QChar::DirFSI || d == QChar::DirPDI;
}

// Numbers count as right-to-left for the neutral characters around them. DirON where there is no strong direction.
Direction strongDirection(Direction d) {
    if (d == QChar::DirL) return QChar::DirL;
    return d == QChar::DirR || d == QChar::DirAL || d == QChar::DirEN || d == QChar::DirAN ? QChar::DirR : QChar::DirON;
}

struct BracketPair {
    std::size_t open, close;
};

// Angle brackets exist twice.
char32_t canonicalBracket(char32_t bracket) { return bracket == 0x2329 ? 0x3008 : bracket == 0x232A ? 0x3009 : bracket; }

class Resolver {
public:
    Resolver(const BidiSequence& sequence, std::vector<BidiCharacter>& characters)
        : m_sequence(sequence), m_characters(characters), m_count(sequence.indexes.size()),
          m_embedding(characters[sequence.indexes.front()].level % 2 == 1 ? QChar::DirR : QChar::DirL) {}

    void resolve() {
        resolveMarks();
        resolveNumbers();
        resolveSeparators();
        resolveRemainingNumbers();
        resolveBrackets();
        resolveNeutrals();
        raiseLevels();
    }

private:
    BidiCharacter& at(std::size_t place) { return m_characters[m_sequence.indexes[place]]; }
    Direction& direction(std::size_t place) { return at(place).direction; }

    // W1: marks are what they stand on.
    void resolveMarks() {
        Direction previous = m_sequence.before;
        for (std::size_t place = 0; place < m_count; ++place) {
            if (direction(place) == QChar::DirNSM) direction(place) = previous;
            const Direction d = direction(place);
            const bool isIsolate = d == QChar::DirLRI || d == QChar::DirRLI || d == QChar::DirFSI || d == QChar::DirPDI;
            previous = isIsolate ? QChar::DirON : d;
        }
    }

    // W2 and W3: numbers after Arabic letters are Arabic numbers; the letters themselves then read like others.
    void resolveNumbers() {
        Direction strong = m_sequence.before;
        for (std::size_t place = 0; place < m_count; ++place) {
            const Direction d = direction(place);
            if (d == QChar::DirL || d == QChar::DirR || d == QChar::DirAL) strong = d;
            if (d == QChar::DirEN && strong == QChar::DirAL) direction(place) = QChar::DirAN;
        }
        for (std::size_t place = 0; place < m_count; ++place)
            if (direction(place) == QChar::DirAL) direction(place) = QChar::DirR;
    }

    // W4 to W6: separators within a number and signs at its ends belong to it; others are neutral.
    void resolveSeparators() {
        for (std::size_t place = 1; place + 1 < m_count; ++place) {
            const Direction d = direction(place), previous = direction(place - 1), next = direction(place + 1);
            if (previous != next) continue;
            if ((d == QChar::DirES || d == QChar::DirCS) && previous == QChar::DirEN) direction(place) = QChar::DirEN;
            if (d == QChar::DirCS && previous == QChar::DirAN) direction(place) = QChar::DirAN;
        }
        for (std::size_t place = 0; place < m_count;) {
            if (direction(place) != QChar::DirET) {
                ++place;
                continue;
            }
            std::size_t end = place;
            while (end < m_count && direction(end) == QChar::DirET) ++end;
            const bool touchesNumber =
                (place > 0 && direction(place - 1) == QChar::DirEN) || (end < m_count && direction(end) == QChar::DirEN);
            for (; place < end; ++place) direction(place) = touchesNumber ? QChar::DirEN : QChar::DirON;
        }
        for (std::size_t place = 0; place < m_count; ++place)
            if (direction(place) == QChar::DirES || direction(place) == QChar::DirCS) direction(place) = QChar::DirON;
    }

    // W7: numbers in left-to-right text read like it.
    void resolveRemainingNumbers() {
        Direction strong = m_sequence.before;
        for (std::size_t place = 0; place < m_count; ++place) {
            const Direction d = direction(place);
            if (d == QChar::DirL || d == QChar::DirR) strong = d;
            if (d == QChar::DirEN && strong == QChar::DirL) direction(place) = QChar::DirL;
        }
    }

    std::vector<BracketPair> bracketPairs() {
        constexpr std::size_t deepest = 63;
        struct Open {
            char32_t closing;
            std::size_t place;
        };
        std::vector<Open> open;
        std::vector<BracketPair> pairs;
        for (std::size_t place = 0; place < m_count; ++place) {
            const char32_t value = at(place).value;
            if (direction(place) != QChar::DirON || !QChar::hasMirrored(value)) continue;
            if (QChar::category(value) == QChar::Punctuation_Open) {
                if (open.size() == deepest) return {};
                open.push_back({canonicalBracket(QChar::mirroredChar(value)), place});
            } else if (QChar::category(value) == QChar::Punctuation_Close) {
                const auto match =
                    std::find_if(open.rbegin(), open.rend(), [&](const Open& o) { return o.closing == canonicalBracket(value); });
                if (match == open.rend()) continue;
                pairs.push_back({match->place, place});
                open.erase(std::prev(match.base()), open.end());
            }
        }
        std::sort(pairs.begin(), pairs.end(), [](const BracketPair& a, const BracketPair& b) { return a.open < b.open; });
        return pairs;
    }

    // N0: both brackets of a pair read like what is inside, or else like what is before.
    void resolveBrackets() {
        for (const BracketPair& pair : bracketPairs()) {
            bool holdsEmbedding = false, holdsOpposite = false;
            for (std::size_t place = pair.open + 1; place < pair.close; ++place) {
                const Direction strong = strongDirection(direction(place));
                holdsEmbedding |= strong == m_embedding;
                holdsOpposite |= strong != m_embedding && strong != QChar::DirON;
            }
            if (holdsEmbedding) {
                setBrackets(pair, m_embedding);
            } else if (holdsOpposite) {
                setBrackets(pair, strongBefore(pair.open) == m_embedding ? m_embedding : opposite());
            }
        }
    }

    Direction opposite() const { return m_embedding == QChar::DirL ? QChar::DirR : QChar::DirL; }

    Direction strongBefore(std::size_t place) {
        while (place > 0) {
            const Direction strong = strongDirection(direction(--place));
            if (strong != QChar::DirON) return strong;
        }
        return m_sequence.before;
    }

    void setBrackets(const BracketPair& pair, Direction d) {
        for (const std::size_t bracket : {pair.open, pair.close}) {
            direction(bracket) = d;
            for (std::size_t mark = bracket + 1; mark < m_count && at(mark).original == QChar::DirNSM; ++mark) direction(mark) = d;
        }
    }

    // N1 and N2: neutrals between two of a direction take it, others the embedding's.
    void resolveNeutrals() {
        for (std::size_t place = 0; place < m_count;) {
            if (!isNeutral(direction(place))) {
                ++place;
                continue;
            }
            std::size_t end = place;
            while (end < m_count && isNeutral(direction(end))) ++end;
            const Direction previous = place > 0 ? strongDirection(direction(place - 1)) : m_sequence.before;
            const Direction next = end < m_count ? strongDirection(direction(end)) : m_sequence.after;
            for (; place < end; ++place) direction(place) = previous == next ? previous : m_embedding;
        }
    }

    void raiseLevels() {
        for (std::size_t place = 0; place < m_count; ++place) {
            const Direction d = direction(place);
            std::uint8_t& level = at(place).level;
            if (level % 2 == 1)
                level += d == QChar::DirR ? 0 : 1;
            else
                level += d == QChar::DirR ? 1 : d == QChar::DirL ? 0 : 2;
        }
    }

    const BidiSequence& m_sequence;
    std::vector<BidiCharacter>& m_characters;
    const std::size_t m_count;
    const Direction m_embedding;
};

} // namespace

void BidiSequence::resolve(std::vector<BidiCharacter>& characters) const {
    if (!indexes.empty()) Resolver(*this, characters).resolve();
}

} // namespace proupsells::qtbackend
