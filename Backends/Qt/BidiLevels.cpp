#include "Backends/Qt/BidiLevels.hpp"

#include <algorithm>
#include <limits>

#include "Backends/Qt/BidiSequence.hpp"

namespace proupsells::qtbackend {

namespace {

using Direction = QChar::Direction;

constexpr int deepestLevel = 125;
constexpr std::size_t none = std::numeric_limits<std::size_t>::max();

bool isIsolateStart(Direction d) { return d == QChar::DirLRI || d == QChar::DirRLI || d == QChar::DirFSI; }
bool isEmbeddingStart(Direction d) { return d == QChar::DirLRE || d == QChar::DirRLE || d == QChar::DirLRO || d == QChar::DirRLO; }
// What the algorithm leaves out after the explicit levels (rule X9).
bool isLeftOut(Direction d) { return isEmbeddingStart(d) || d == QChar::DirPDF || d == QChar::DirBN; }
Direction directionOf(std::uint8_t level) { return level % 2 == 1 ? QChar::DirR : QChar::DirL; }

class Paragraph {
public:
    Paragraph(std::vector<BidiCharacter> characters, std::uint8_t baseLevel)
        : m_characters(std::move(characters)), m_baseLevel(baseLevel), m_partners(m_characters.size(), none) {}

    const std::vector<BidiCharacter>& resolve() {
        findIsolates();
        assignExplicitLevels();
        for (const BidiSequence& sequence : sequences()) sequence.resolve(m_characters);
        levelLeftOut();
        resetBlanks();
        return m_characters;
    }

private:
    struct Embedding {
        std::uint8_t level;
        Direction override; // DirON: none
        bool isIsolate;
    };

    // BD9: which closing character belongs to which isolate.
    void findIsolates() {
        std::vector<std::size_t> open;
        for (std::size_t index = 0; index < m_characters.size(); ++index) {
            if (isIsolateStart(m_characters[index].original)) {
                open.push_back(index);
            } else if (m_characters[index].original == QChar::DirPDI && !open.empty()) {
                m_partners[index] = open.back();
                m_partners[open.back()] = index;
                open.pop_back();
            }
        }
    }

    // P2 and P3, for an isolate that takes its direction from its first strong character.
    bool startsRightToLeft(std::size_t first, std::size_t end) const {
        for (std::size_t index = first; index < end; ++index) {
            const Direction d = m_characters[index].original;
            if (d == QChar::DirL) return false;
            if (d == QChar::DirR || d == QChar::DirAL) return true;
            if (!isIsolateStart(d)) continue;
            if (m_partners[index] == none) return false;
            index = m_partners[index];
        }
        return false;
    }

    bool isRightToLeftStart(std::size_t index) const {
        const Direction d = m_characters[index].original;
        if (d != QChar::DirFSI) return d == QChar::DirRLI || d == QChar::DirRLE || d == QChar::DirRLO;
        return startsRightToLeft(index + 1, m_partners[index] == none ? m_characters.size() : m_partners[index]);
    }

    // X1 to X8.
    void assignExplicitLevels() {
        m_stack = {{m_baseLevel, QChar::DirON, false}};
        m_overflowIsolates = m_overflowEmbeddings = m_openIsolates = 0;
        for (std::size_t index = 0; index < m_characters.size(); ++index) {
            BidiCharacter& character = m_characters[index];
            const Direction d = character.original;
            if (d == QChar::DirPDI) closeIsolate();
            character.level = d == QChar::DirB ? m_baseLevel : m_stack.back().level;
            if (m_stack.back().override != QChar::DirON && !isLeftOut(d) && d != QChar::DirB)
                character.direction = m_stack.back().override;
            if (isIsolateStart(d) || isEmbeddingStart(d)) open(index);
            if (d == QChar::DirPDF) closeEmbedding();
        }
    }

    void open(std::size_t index) {
        const Direction d = m_characters[index].original;
        const int current = m_stack.back().level;
        const int level = isRightToLeftStart(index) ? (current + 1) | 1 : (current + 2) & ~1;
        const bool fits = level <= deepestLevel && m_overflowIsolates == 0 && m_overflowEmbeddings == 0;
        const Direction override = d == QChar::DirLRO ? QChar::DirL : d == QChar::DirRLO ? QChar::DirR : QChar::DirON;
        if (isIsolateStart(d)) {
            if (!fits) {
                ++m_overflowIsolates;
                return;
            }
            ++m_openIsolates;
        } else if (!fits) {
            if (m_overflowIsolates == 0) ++m_overflowEmbeddings;
            return;
        }
        m_stack.push_back({std::uint8_t(level), override, isIsolateStart(d)});
    }

    void closeIsolate() {
        if (m_overflowIsolates > 0) {
            --m_overflowIsolates;
        } else if (m_openIsolates > 0) {
            m_overflowEmbeddings = 0;
            while (!m_stack.back().isIsolate) m_stack.pop_back();
            m_stack.pop_back();
            --m_openIsolates;
        }
    }

    void closeEmbedding() {
        if (m_overflowIsolates > 0) return;
        if (m_overflowEmbeddings > 0)
            --m_overflowEmbeddings;
        else if (!m_stack.back().isIsolate && m_stack.size() > 1)
            m_stack.pop_back();
    }

    // X10: runs of one level, joined across the isolates between them.
    std::vector<BidiSequence> sequences() const {
        std::vector<std::vector<std::size_t>> runs;
        std::vector<std::size_t> runOf(m_characters.size(), none);
        for (std::size_t index = 0; index < m_characters.size(); ++index) {
            if (isLeftOut(m_characters[index].original)) continue;
            if (runs.empty() || m_characters[runs.back().back()].level != m_characters[index].level) runs.emplace_back();
            runs.back().push_back(index);
            runOf[index] = runs.size() - 1;
        }
        std::vector<BidiSequence> result;
        for (const std::vector<std::size_t>& run : runs) {
            const bool continues = m_characters[run.front()].original == QChar::DirPDI && m_partners[run.front()] != none;
            if (continues) continue;
            BidiSequence& sequence = result.emplace_back();
            sequence.indexes = run;
            while (true) {
                const std::size_t last = sequence.indexes.back();
                if (!isIsolateStart(m_characters[last].original) || m_partners[last] == none) break;
                const std::vector<std::size_t>& next = runs[runOf[m_partners[last]]];
                sequence.indexes.insert(sequence.indexes.end(), next.begin(), next.end());
            }
            surround(sequence);
        }
        return result;
    }

    void surround(BidiSequence& sequence) const {
        const std::uint8_t level = m_characters[sequence.indexes.front()].level;
        std::size_t before = sequence.indexes.front(), after = sequence.indexes.back() + 1;
        while (before > 0 && isLeftOut(m_characters[before - 1].original)) --before;
        while (after < m_characters.size() && isLeftOut(m_characters[after].original)) ++after;
        const bool endsOpen = isIsolateStart(m_characters[sequence.indexes.back()].original);
        const std::uint8_t levelBefore = before > 0 ? m_characters[before - 1].level : m_baseLevel;
        const std::uint8_t levelAfter = after < m_characters.size() && !endsOpen ? m_characters[after].level : m_baseLevel;
        sequence.before = directionOf(std::max(level, levelBefore));
        sequence.after = directionOf(std::max(level, levelAfter));
    }

    // What was left out goes with the character before it.
    void levelLeftOut() {
        std::uint8_t level = m_baseLevel;
        for (BidiCharacter& character : m_characters) {
            if (isLeftOut(character.original)) character.level = level;
            level = character.level;
        }
    }

    // L1: blanks before a tab and at the end read like the paragraph.
    void resetBlanks() {
        bool isReset = true;
        for (std::size_t index = m_characters.size(); index-- > 0;) {
            const Direction d = m_characters[index].original;
            if (d == QChar::DirB || d == QChar::DirS)
                isReset = true;
            else if (d != QChar::DirWS && d != QChar::DirPDI && !isIsolateStart(d) && !isLeftOut(d))
                isReset = false;
            if (isReset) m_characters[index].level = m_baseLevel;
        }
    }

    std::vector<BidiCharacter> m_characters;
    const std::uint8_t m_baseLevel;
    std::vector<std::size_t> m_partners; // of isolates' ends
    std::vector<Embedding> m_stack;
    int m_overflowIsolates = 0, m_overflowEmbeddings = 0, m_openIsolates = 0;
};

} // namespace

std::vector<std::uint8_t> bidiLevels(const QString& text, std::uint8_t baseLevel) {
    std::vector<std::uint8_t> levels;
    levels.reserve(std::size_t(text.size()));
    std::vector<BidiCharacter> characters;
    const auto finishParagraph = [&] {
        Paragraph paragraph(std::move(characters), baseLevel);
        for (const BidiCharacter& character : paragraph.resolve())
            levels.insert(levels.end(), QChar::requiresSurrogates(character.value) ? 2 : 1, character.level);
        characters.clear();
    };
    for (qsizetype at = 0; at < text.size(); ++at) {
        char32_t value = text[at].unicode();
        if (text[at].isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate()) {
            value = QChar::surrogateToUcs4(text[at], text[at + 1]);
            ++at;
        }
        const Direction direction = QChar::direction(value);
        characters.push_back({value, direction, direction, 0});
        if (direction == QChar::DirB) finishParagraph();
    }
    if (!characters.empty()) finishParagraph();
    return levels;
}

} // namespace proupsells::qtbackend
