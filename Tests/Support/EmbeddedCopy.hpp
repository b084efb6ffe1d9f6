// A file as a program has it that brings it inside.
#pragma once

#include <string>

#include "Platform/System/EmbeddedFiles.hpp"
#include "Platform/System/PathText.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

namespace proupsells::tests {

// There while it lives.
class EmbeddedCopy {
public:
    EmbeddedCopy(std::string name, std::string bytes) : m_name(std::move(name)), m_bytes(std::move(bytes)) {}

    std::filesystem::path path() const { return system::EmbeddedFiles::root() / system::pathOf(m_name); }

private:
    std::string m_name;
    std::string m_bytes;
    system::EmbeddedFile m_file{m_name.c_str(), m_bytes.data(), m_bytes.data() + m_bytes.size()};
    system::EmbeddedFiles m_table{{&m_file, 1}};
};

} // namespace proupsells::tests
