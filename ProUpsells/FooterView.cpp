#include "ProUpsells/FooterView.hpp"

#include "Platform/VelaUIKit/Fonts.hpp"

namespace proupsells {

FooterView::FooterView() : m_labels(velauikit::velaDefaultFont(velauikit::FontOption::medium, 20)) { m_labels.addTo(*this); }

} // namespace proupsells
