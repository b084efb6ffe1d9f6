#include "Apps/ProUpsellsHost/WholeFile.hpp"

#include <fstream>

#include "Apps/ProUpsellsHost/InputError.hpp"
#include "Platform/System/PathText.hpp"
#include "Platform/System/WholeFile.hpp"

namespace proupsells::hostprogram {

namespace {

[[noreturn]] void fail(const std::filesystem::path& file) {
    throw InputError(system::textOf(file), "", "the file cannot be written, expected a place where one can be");
}

} // namespace

void expectWritable(const std::filesystem::path& file) {
    std::error_code error;
    if (file.empty() || std::filesystem::is_directory(file, error)) fail(file);
    const std::filesystem::path draft = system::draftOf(file);
    // It may be a link of somebody else's.
    std::filesystem::remove(draft, error);
    const bool isWritten = std::ofstream(draft, std::ios::binary).good();
    std::filesystem::remove(draft, error);
    if (!isWritten) fail(file);
}

void writeWhole(const std::filesystem::path& file, std::string_view bytes) {
    if (!system::writeWhole(file, bytes)) fail(file);
}

} // namespace proupsells::hostprogram
