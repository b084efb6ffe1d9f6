#include "Platform/Host/TextCache.hpp"

#include <algorithm>
#include <functional>

#include "Platform/Host/Services.hpp"

namespace proupsells::host {

using geometry::LayoutDirection;
using graphics::ShapedText;
using graphics::StyledRun;

namespace {

std::size_t hashOf(std::span<const StyledRun> runs, std::string_view language, LayoutDirection direction) {
    std::size_t hash = std::hash<std::string_view>{}(language)*2 + std::size_t(direction);
    const auto mix = [&hash](std::size_t value) { hash ^= value + 0x9E3779B97F4A7C15 + (hash << 6) + (hash >> 2); };
    for (const StyledRun& run : runs) {
        mix(std::hash<std::string_view>{}(run.text));
        mix(std::hash<const void*>{}(run.font.face));
        mix(std::hash<double>{}(run.font.size));
        mix(std::hash<double>{}(run.kern));
    }
    return hash;
}

bool isSame(const std::vector<StyledRun>& known, std::span<const StyledRun> runs) {
    return std::equal(known.begin(), known.end(), runs.begin(), runs.end());
}

} // namespace

TextCache& TextCache::shared() {
    static TextCache cache;
    return cache;
}

const std::shared_ptr<const ShapedText>& TextCache::shaped(std::span<const StyledRun> runs, std::string_view language,
                                                           LayoutDirection direction) {
    const std::size_t hash = hashOf(runs, language, direction);
    const auto [first, end] = m_byHash.equal_range(hash);
    for (auto candidate = first; candidate != end; ++candidate) {
        const Entry& entry = *candidate->second;
        if (entry.direction != direction || entry.language != language || !isSame(entry.runs, runs)) continue;
        m_entries.splice(m_entries.begin(), m_entries, candidate->second);
        return m_entries.front().text;
    }

    auto text = Installation::textShaper().shape(runs, language, direction);
    if (m_entries.size() >= m_capacity) removeOldest();
    m_entries.push_front({hash, {runs.begin(), runs.end()}, std::string(language), direction, std::move(text)});
    m_byHash.emplace(hash, m_entries.begin());
    return m_entries.front().text;
}

const std::shared_ptr<const ShapedText>& TextCache::ellipsis(const graphics::Font& font, std::string_view language,
                                                             LayoutDirection direction) {
    const StyledRun run{"…", font, 0};
    return shaped({&run, 1}, language, direction);
}

void TextCache::clear() {
    m_byHash.clear();
    m_entries.clear();
}

void TextCache::removeOldest() {
    if (m_entries.empty()) return;
    const auto oldest = std::prev(m_entries.end());
    const auto [first, end] = m_byHash.equal_range(oldest->hash);
    m_byHash.erase(std::find_if(first, end, [&](const auto& pair) { return pair.second == oldest; }));
    m_entries.erase(oldest);
}

double totalAdvance(const ShapedText& text) {
    double sum = 0;
    for (const graphics::Cluster& cluster : text.clusters) sum += cluster.advance;
    return sum;
}

} // namespace proupsells::host
