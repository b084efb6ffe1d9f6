#include "ProUpsells/LibraryClips.hpp"

#include <algorithm>

#include "ProUpsells/ResourceBundleClass.hpp"

namespace proupsells {

const std::vector<std::string>& libraryClipNames() {
    static const std::vector<std::string> names{"90s3D",       "LHxVELA_Confetti", "LIPPY",     "VELA_FILM", "VELA_GROW",
                                                "VELA_SOCKS-", "VELA_TEASPIN",     "PINEAPPLE", "sale_blue", "Summer"};
    return names;
}

std::vector<std::filesystem::path> foundLibraryClips() {
    std::vector<std::filesystem::path> found;
    for (const std::string& name : libraryClipNames())
        if (auto file = ResourceBundleClass::bundle().pathForResource(name, "mp4")) found.push_back(std::move(*file));
    return found;
}

std::vector<std::filesystem::path> playList(const std::vector<std::filesystem::path>& found) {
    constexpr std::size_t thirdRound = 5;
    std::vector<std::filesystem::path> list = found;
    list.insert(list.end(), found.begin(), found.end());
    list.insert(list.end(), found.begin(), found.begin() + std::ptrdiff_t(std::min(thirdRound, found.size())));
    return list;
}

} // namespace proupsells
