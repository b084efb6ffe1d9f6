#include "Tests/HostProgram/Program.hpp"

#include <cstdlib>
#include <sstream>

#include <sys/wait.h>

namespace proupsells::tests {

namespace {

std::string quoted(const std::string& argument) {
    std::string result = "'";
    for (const char c : argument) {
        if (c == '\'')
            result += "'\\''";
        else
            result += c;
    }
    return result + "'";
}

std::vector<std::string> lines(const std::string& text) {
    std::istringstream stream(text);
    std::vector<std::string> result;
    for (std::string line; std::getline(stream, line);) result.push_back(line);
    return result;
}

void collectTexts(const Json& node, std::vector<std::string>& result) {
    if (node.contains("text")) result.push_back(node["text"]);
    if (!node.contains("children")) return;
    for (const Json& child : node["children"]) collectTexts(child, result);
}

std::string commandOf(const std::filesystem::path& program, const std::vector<std::string>& arguments) {
    std::string command = quoted(program.string());
    for (const std::string& argument : arguments) command += " " + quoted(argument);
    return command;
}

// `after` may lead the output elsewhere.
Outcome runCommand(const std::string& command, const std::string& after) {
    const Folder folder;
    const auto output = folder.path() / "output", errors = folder.path() / "errors";
    const std::string whole = command + " > " + quoted(output) + " 2> " + quoted(errors) + " < /dev/null" + after;
    const int status = std::system(whole.c_str());
    Outcome outcome;
    outcome.status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    outcome.output = bytesOf(output);
    outcome.errors = bytesOf(errors);
    return outcome;
}

} // namespace

std::vector<Json> Outcome::events() const {
    std::vector<Json> result;
    for (const std::string& line : lines(output)) result.push_back(Json::parse(line));
    return result;
}

std::vector<Json> Outcome::events(const std::string& kind) const {
    std::vector<Json> result;
    for (Json& event : events())
        if (event["event"] == kind) result.push_back(std::move(event));
    return result;
}

std::vector<std::string> Outcome::errorLines() const { return lines(errors); }

Outcome runProgram(const std::vector<std::string>& arguments, const std::filesystem::path& program,
                   const std::filesystem::path& outputFile) {
    return runCommand(commandOf(program, arguments), outputFile.empty() ? "" : " > " + quoted(outputFile));
}

Outcome runProgramIn(const std::string& before, const std::vector<std::string>& arguments, const std::string& after) {
    // A shell of its own, so that limits do not hold for the one that opens the files for what the program says.
    return runCommand("sh -c " + quoted(before + R"(exec "$0" "$@")") + " " + commandOf(builtProgram, arguments), after);
}

Outcome play(const Json& scenario, const std::filesystem::path& program) {
    const Folder folder;
    Json whole = scenario;
    if (!whole.contains("offers")) whole["offers"] = sampleOffers();
    if (!whole["device"].contains("fonts")) whole["device"]["fonts"] = "fixed";
    return runProgram({"run", folder.write("scenario.json", whole).string(), "--out", folder.path().string()}, program);
}

Json sampleOffers() {
    return Json::parse(R"({
      "options": [
        { "SKU": "pro.yearly", "type": "yearly", "price": "$99.99", "monthlyEffectivePrice": "$8.33", "introductoryPeriodLength": "1 week" },
        { "SKU": "pro.monthly", "type": "monthly", "price": "$14.99" },
        { "SKU": "pro.forever", "type": "lifetime", "price": "$299.99" }
      ],
      "referrer": { "name": "Home", "elementID": 5 }
    })");
}

Json find(const Json& root, const std::string& identifier) {
    if (root.contains("identifier") && root["identifier"] == identifier) return root;
    if (root.contains("children"))
        for (const Json& child : root["children"])
            if (Json found = find(child, identifier); !found.is_null()) return found;
    return nullptr;
}

std::vector<std::string> texts(const Json& root) {
    std::vector<std::string> result;
    collectTexts(root, result);
    return result;
}

} // namespace proupsells::tests
