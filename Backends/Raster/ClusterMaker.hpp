// User-perceived characters and the places where lines may break.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "Backends/Raster/PlainLineBreaks.hpp"
#include "Backends/Raster/RunUnits.hpp"

namespace proupsells::rasterbackend {

// Keeps what is costly to make: a set of rules for each language.
class ClusterMaker {
public:
    ClusterMaker();
    ~ClusterMaker();

    // The clusters of a text in logical order, without advances and levels; none crosses the border of two runs. `unitStarts` gets
    // each one's first UTF-16 unit, and the end. Lines break as is usual in the language, a tag such as "de-AT"; empty: as
    // anywhere.
    void makeClusters(const RunUnits& text, std::string_view language, std::vector<graphics::Cluster>& clusters,
                      std::vector<std::uint32_t>& unitStarts);

private:
    struct Rules;

    Rules& characterRules();
    Rules& lineRules(std::string_view language);
    void findStarts(const RunUnits& text, std::vector<std::uint32_t>& starts);

    std::unique_ptr<Rules> m_characters; // null until a text needs them
    std::map<std::string, std::unique_ptr<Rules>, std::less<>> m_lines;
    PlainLineBreaks m_plainBreaks;
};

} // namespace proupsells::rasterbackend
