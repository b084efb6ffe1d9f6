// The host program as it is installed somewhere, with resources of its own.
#pragma once

#include "Tests/HostProgram/Program.hpp"

namespace proupsells::tests {

// A copy of the program, and of the clips beside it for a test to spoil. Gone with the object.
class InstalledProgram {
public:
    InstalledProgram();

    void writeClip(const std::string& name, const std::string& bytes) const;
    void removeClip(const std::string& name) const;
    // Plays a scenario as tests::play() does.
    Outcome play(const Json& scenario) const;

private:
    Folder m_folder;
    std::filesystem::path m_program = m_folder.path() / "bin" / "proupsells";
    std::filesystem::path m_clips = m_folder.path() / "share" / "proupsells" / "ProUpsells" / "Clips";
};

} // namespace proupsells::tests
