// Runs the host program as a person would, and reads what it says.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "Tests/Support/TemporaryFolder.hpp"

namespace proupsells::tests {

using Json = nlohmann::json;

struct Outcome {
    int status = -1; // the exit status; 128 + the signal's number when one ended it
    std::string output;
    std::string errors;

    // Standard output, a JSON value a line.
    std::vector<Json> events() const;
    // The events of one kind.
    std::vector<Json> events(const std::string& kind) const;
    std::vector<std::string> errorLines() const;
};

// A fresh folder that goes with the object.
class Folder : public TemporaryFolder {
public:
    using TemporaryFolder::write;
    std::filesystem::path write(const std::string& name, const std::string& bytes) const {
        return write(name, std::string_view(bytes));
    }
    std::filesystem::path write(const std::string& name, const Json& value) const { return write(name, value.dump()); }
};

inline const std::filesystem::path builtProgram = PROUPSELLS_PROGRAM;

// `outputFile` takes what the program prints in the outcome's stead, where it is not empty.
Outcome runProgram(const std::vector<std::string>& arguments, const std::filesystem::path& program = builtProgram,
                   const std::filesystem::path& outputFile = {});
// Runs the program with what a shell's line says before and after it: limits before it, say, and a place for its output after it.
Outcome runProgramIn(const std::string& before, const std::vector<std::string>& arguments, const std::string& after = {});
// Plays a scenario with fixed fonts unless its device says otherwise; pictures go to the scenario's folder.
Outcome play(const Json& scenario, const std::filesystem::path& program = builtProgram);
// The sample offers' options and referrer.
Json sampleOffers();
// The node with an identifier in a dumped screen; null when there is none.
Json find(const Json& root, const std::string& identifier);
// The texts of all nodes of a dumped screen, in the tree's order.
std::vector<std::string> texts(const Json& root);

} // namespace proupsells::tests
