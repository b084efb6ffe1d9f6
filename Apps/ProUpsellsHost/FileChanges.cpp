#include "Apps/ProUpsellsHost/FileChanges.hpp"

#include <algorithm>
#include <utility>

namespace proupsells::hostprogram {

FileChanges::FileChanges(Files files) : m_files(std::move(files)), m_known(traces()), m_seen(m_known) {}

std::vector<FileChanges::Trace> FileChanges::traces() const {
    std::vector<Trace> traces;
    for (const std::filesystem::path& file : m_files()) {
        Trace trace{.file = file};
        std::error_code noTime, noSize;
        trace.written = std::filesystem::last_write_time(file, noTime);
        trace.size = std::filesystem::file_size(file, noSize);
        trace.isThere = !noTime && !noSize;
        if (!trace.isThere) trace = {.file = file};
        traces.push_back(std::move(trace));
    }
    return traces;
}

bool FileChanges::look() {
    constexpr int looksForChange = 2, looksForLoss = 10;
    std::vector<Trace> now = traces();
    m_looks = now == m_seen ? m_looks + 1 : 1;
    m_seen = std::move(now);
    if (m_seen == m_known) return false;
    // What has never been there is not lost.
    const auto isGone = [this](const Trace& trace) {
        return trace.isThere && std::find_if(m_seen.begin(), m_seen.end(), [&](const Trace& seen) {
                                    return seen.isThere && seen.file == trace.file;
                                }) == m_seen.end();
    };
    const bool isLoss = std::any_of(m_known.begin(), m_known.end(), isGone);
    if (m_looks < (isLoss ? looksForLoss : looksForChange)) return false;
    m_known = m_seen;
    return true;
}

} // namespace proupsells::hostprogram
