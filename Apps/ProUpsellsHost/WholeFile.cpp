#include "Apps/ProUpsellsHost/WholeFile.hpp"

#include <fstream>

#include "Apps/ProUpsellsHost/InputError.hpp"
#include "Platform/System/PathText.hpp"

namespace proupsells::hostprogram {

namespace {

// Beside the file, so that it only has to be renamed.
std::filesystem::path unfinished(std::filesystem::path file) { return file += ".part"; }

[[noreturn]] void fail(const std::filesystem::path& file) {
    throw InputError(system::textOf(file), "", "the file cannot be written, expected a place where one can be");
}

} // namespace

void expectWritable(const std::filesystem::path& file) {
    std::error_code error;
    if (file.empty() || std::filesystem::is_directory(file, error)) fail(file);
    const bool isWritten = std::ofstream(unfinished(file), std::ios::binary).good();
    std::filesystem::remove(unfinished(file), error);
    if (!isWritten) fail(file);
}

void writeWhole(const std::filesystem::path& file, std::string_view bytes) {
    std::ofstream stream(unfinished(file), std::ios::binary);
    stream.write(bytes.data(), std::streamsize(bytes.size()));
    stream.close();
    std::error_code error;
    if (stream) std::filesystem::rename(unfinished(file), file, error);
    if (stream && !error) return;
    std::error_code ignored;
    std::filesystem::remove(unfinished(file), ignored);
    fail(file);
}

} // namespace proupsells::hostprogram
