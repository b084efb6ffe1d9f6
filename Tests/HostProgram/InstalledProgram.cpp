#include "Tests/HostProgram/InstalledProgram.hpp"

namespace proupsells::tests {

namespace fs = std::filesystem;

InstalledProgram::InstalledProgram() {
    const fs::path programs = m_program.parent_path();
    fs::create_directories(programs);
    // The program looks around where it really lies: a link to it would lead it back to the source tree.
    fs::copy(builtProgram, m_program);
    fs::create_symlink(builtProgram.parent_path() / "proupsells-clips.so", programs / "proupsells-clips.so");

    const fs::path resources = m_folder.path() / "share" / "proupsells";
    fs::create_directories(m_clips.parent_path());
    fs::copy("ProUpsells/Resources/Clips", m_clips);
    const fs::path built = builtProgram.parent_path().parent_path() / "share" / "proupsells";
    for (const char* part : {"ProUpsells/Images", "VelaUIKit", "Fonts"}) fs::create_symlink(built / part, resources / part);
}

void InstalledProgram::writeClip(const std::string& name, const std::string& bytes) const {
    std::ofstream(m_clips / name, std::ios::binary) << bytes;
}

void InstalledProgram::removeClip(const std::string& name) const { fs::remove(m_clips / name); }

Outcome InstalledProgram::play(const Json& scenario) const { return tests::play(scenario, m_program); }

} // namespace proupsells::tests
