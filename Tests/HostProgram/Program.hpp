// Runs the host program as a person would, and reads what it says.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

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
class Folder {
public:
    Folder();
    ~Folder();
    Folder(const Folder&) = delete;

    const std::filesystem::path& path() const { return m_path; }
    std::filesystem::path write(const std::string& name, const std::string& bytes) const;
    std::filesystem::path write(const std::string& name, const Json& value) const { return write(name, value.dump()); }

private:
    std::filesystem::path m_path;
};

Outcome runProgram(const std::vector<std::string>& arguments);
// Plays a scenario with fixed fonts unless its device says otherwise; pictures go to the scenario's folder.
Outcome play(const Json& scenario);
// The sample offers' options and referrer.
Json sampleOffers();
// The node with an identifier in a dumped screen; null when there is none.
Json find(const Json& root, const std::string& identifier);
// The texts of all nodes of a dumped screen, in the tree's order.
std::vector<std::string> texts(const Json& root);

} // namespace proupsells::tests
