// Any bytes as a translator's file: it has texts or one error inside the file, and everything it hands out is valid UTF-8.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "Fuzz/Require.hpp"
#include "Platform/Foundation/StringsFile.hpp"
#include "Platform/Foundation/Utf8.hpp"

using namespace proupsells;
using fuzz::require;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const foundation::StringsFile file = foundation::StringsFile::parse(bytes);
    if (file.error) {
        require(file.texts.empty());
        require(file.error->line >= 1 && file.error->line <= size + 1);
        require(!file.error->message.empty());
    }
    for (const auto& [key, text] : file.texts) require(foundation::isValidUtf8(key) && foundation::isValidUtf8(text));
    return 0;
}
