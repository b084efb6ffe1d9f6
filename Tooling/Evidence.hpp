// What a customer was shown and agreed to, as a document.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "Platform/Geometry/Geometry.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::tooling {

// A text as it was shown.
struct EvidenceText {
    std::vector<std::pair<std::string, bool>> parts; // in order; true for what is struck through
    std::string identifier{};                        // of what it stands in; empty for none
    geometry::Rect frame{};                          // window points
    double size = 0;                                 // points
    std::optional<double> contrast{};                // to what is behind it; absent while nothing of it can be seen
};

struct EvidenceScreen {
    std::string name;    // in the language of the customer
    std::string png;     // the bytes of its picture
    geometry::Size size; // points
    std::vector<EvidenceText> texts;
};

// What was done, and what came of it.
struct EvidenceMoment {
    double time_s = 0;
    std::string did{};                      // empty at the beginning
    std::vector<std::string> calls{};       // what the host was told meanwhile, as event lines
    bool isAgreement = false;               // whether the customer went on to buy
    bool isShowing = true;                  // whether anything of the module stood there afterwards
    std::optional<EvidenceScreen> screen{}; // what stood there; absent when it was the same as before
};

using EvidenceFacts = std::vector<std::pair<std::string, std::string>>; // names and values, in order

struct Evidence {
    EvidenceFacts facts;               // the program's version, the device, the language
    std::vector<EvidenceFacts> offers; // of each plan
    std::vector<EvidenceMoment> moments;
};

// A digest of bytes, in hexadecimal digits.
using Digest = std::function<std::string(std::string_view bytes)>;

struct EvidenceDocument {
    std::string html;   // a page of its own, with every picture in it
    std::string digest; // of all lines of the page after the first two; the second one has it
};

// The same evidence gives the same document. `digestName` is what others call the digest, such as "SHA-256".
PROUPSELLS_EXPORT EvidenceDocument evidenceDocument(const Evidence& evidence, const std::string& digestName, const Digest& digest);

} // namespace proupsells::tooling
