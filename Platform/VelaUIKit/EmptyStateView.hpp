// What stands where there is nothing to show yet.
#pragma once

#include <optional>
#include <string>

#include "Platform/System/Compiler.hpp"
#include "Platform/UIKit/Views/UIView.hpp"

namespace proupsells::velauikit {

// Covers what is behind it with the page background.
class PROUPSELLS_EXPORT EmptyStateView : public uikit::UIView {
public:
    // Why nothing is shown. With `none` the view covers nothing.
    enum class Kind { none = 0, message = 1, waiting = 2 };

    // What stands here. The title is read to a person; the message and the image are kept for whoever asks.
    struct Configuration {
        Kind kind = Kind::none;
        std::optional<std::string> title;
        std::optional<std::string> message;
        uikit::UIImage image; // null for none
    };

    std::string_view typeName() const override { return "EmptyStateView"; }

    // Replaces what was there.
    void configure(Configuration configuration);
    const Configuration& configuration() const { return m_configuration; }

private:
    Configuration m_configuration;
};

} // namespace proupsells::velauikit
