#include "Tests/Soak/Curve.hpp"

#include <unistd.h>

#include <cstdio>
#include <memory>
#include <utility>

#include "Tests/Soak/Lengths.hpp"
#include "Tests/Support/AllocationCounter.hpp"
#include "Tests/Support/Sanitizers.hpp"
#include "Tests/Support/UsedMemory.hpp"

namespace proupsells::soak {

Curve::Curve(std::string subject, std::string unit) : m_subject(std::move(subject)), m_unit(std::move(unit)) {
    m_points.reserve(2 * pointCount);
}

void Curve::add(double at, std::size_t timers, std::size_t commands) {
    const std::size_t pageSize_bytes = std::size_t(sysconf(_SC_PAGESIZE));
    const std::size_t resident_pages = tests::isSanitized ? 0 : tests::residentMemory_bytes() / pageSize_bytes;
    m_points.push_back({at, tests::liveBlocks, tests::liveBytes, resident_pages, timers, commands});
}

std::size_t Curve::pagesGained() const {
    const std::size_t first = m_points.front().resident_pages, last = m_points.back().resident_pages;
    return last > first ? last - first : 0;
}

void Curve::tell() const {
    std::printf("%-10s %12s %12s %12s %8s %8s %9s\n", m_subject.c_str(), m_unit.c_str(), "live blocks", "live bytes", "pages",
                "timers", "commands");
    for (const Measure& point : m_points)
        std::printf("%-10s %12g %12zu %12zu %8zu %8zu %9zu\n", "", point.at, point.liveBlocks, point.liveBytes,
                    point.resident_pages, point.timers, point.commands);
    std::fflush(stdout);
    if (lengths.curveFile.empty()) return;
    const auto close = [](std::FILE* stream) { std::fclose(stream); };
    const std::unique_ptr<std::FILE, decltype(close)> file(std::fopen(lengths.curveFile.c_str(), "a"), close);
    if (!file) return std::perror(lengths.curveFile.c_str());
    for (const Measure& point : m_points)
        std::fprintf(file.get(), "%s,%s,%.10g,%zu,%zu,%zu,%zu,%zu\n", m_subject.c_str(), m_unit.c_str(), point.at, point.liveBlocks,
                     point.liveBytes, point.resident_pages, point.timers, point.commands);
}

} // namespace proupsells::soak
