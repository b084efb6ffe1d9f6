// Where the user came from.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>

#include "Platform/System/Compiler.hpp"

namespace proupsells {

// A screen's name, and what the user tapped there, if it is known.
struct PROUPSELLS_EXPORT Referrer {
    // What the user tapped there: a number or an identifier.
    struct ElementID {
        // Told apart by kind: a number is never equal to a text.
        struct Int {
            std::int64_t value = 0;
            bool operator==(const Int&) const = default;
        };
        // Any text; it need not be a well-formed UUID.
        struct Uuid {
            std::string value;
            bool operator==(const Uuid&) const = default;
        };

        std::variant<Int, Uuid> value;

        // "int(5)" or "uuid(\"A1\")", with the text's quotes, backslashes and control characters escaped.
        std::string description() const;

        bool operator==(const ElementID&) const = default;
    };

    std::string name;
    std::optional<ElementID> elementID;

    // A text alone is a name without an element.
    Referrer(const char* screen) : name(screen) {}
    Referrer(std::string screen) : name(std::move(screen)) {}
    // A name with a number.
    Referrer(std::string name, std::optional<std::int64_t> elementID);
    Referrer(std::string name, std::int64_t elementID);
    // Always an `ElementID::Uuid`, whatever the text looks like.
    Referrer(std::string name, std::string elementID);

    // The name, and without a blank between its parts the element: "Home - elementIDint(5)".
    std::string description() const;

    bool operator==(const Referrer&) const = default;
};

} // namespace proupsells
