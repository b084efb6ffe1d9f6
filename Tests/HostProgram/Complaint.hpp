// Files with something wrong in them, and what the program says about it.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

#include "Tests/HostProgram/Program.hpp"

namespace proupsells::tests {

// What is wrong in a file, and what the line says behind the file's name.
struct Complaint {
    std::string bytes;
    std::string line;
};

inline void expectComplaints(const std::vector<std::string>& command, const std::vector<Complaint>& complaints) {
    for (const auto& [bytes, line] : complaints) {
        const Folder folder;
        const std::string file = folder.write("input.json", bytes).string();
        std::vector<std::string> arguments = command;
        for (std::string& argument : arguments)
            if (argument == "FILE") argument = file;

        const Outcome outcome = runProgram(arguments);

        EXPECT_EQ(outcome.status, 2) << bytes;
        EXPECT_EQ(outcome.output, "") << bytes;
        EXPECT_EQ(outcome.errors, file + ": " + line + "\n") << bytes;
    }
}

inline void expectComplaintsOfRun(const std::vector<Complaint>& complaints) { expectComplaints({"run", "FILE"}, complaints); }

// Complaints about one part of a scenario that is good otherwise.
inline std::vector<Complaint> about(const std::string& before, const std::vector<Complaint>& parts, const std::string& after) {
    std::vector<Complaint> whole;
    for (const auto& [bytes, line] : parts) whole.push_back({before + bytes + after, line});
    return whole;
}
inline std::vector<Complaint> aboutSteps(const std::vector<Complaint>& parts) {
    return about(R"({"offers": {"options": []}, "steps": [)", parts, "]}");
}
inline std::vector<Complaint> aboutInputs(const std::vector<Complaint>& parts) {
    return about(R"({"offers": {"options": []}, "inputs": [)", parts, "]}");
}
inline std::vector<Complaint> aboutDevices(const std::vector<Complaint>& parts) {
    return about(R"({"offers": {"options": []}, "device": )", parts, "}");
}
inline std::vector<Complaint> aboutOffers(const std::vector<Complaint>& parts) { return about(R"({"offers": )", parts, "}"); }

} // namespace proupsells::tests
