#include "Platform/VelaUIKit/EmptyStateView.hpp"

#include <utility>

#include "Platform/VelaUIKit/VelaColors.hpp"

namespace proupsells::velauikit {

void EmptyStateView::configure(Configuration configuration) {
    m_configuration = std::move(configuration);
    setBackgroundColor(m_configuration.kind == Kind::none ? std::nullopt : std::optional(velaBackground));
    accessibilityLabel = m_configuration.title.value_or("");
    setNeedsDisplay();
}

} // namespace proupsells::velauikit
