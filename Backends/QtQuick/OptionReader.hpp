// Subscription options as QML writes them.
#pragma once

#include <QVariantList>
#include <vector>

#include "ProUpsells/SubscriptionOption.hpp"

namespace proupsells::qtquick {

// See PaywallItem. What is no option costs one log line and is left out.
std::vector<SubscriptionOption> readOptions(const QVariantList& options);

} // namespace proupsells::qtquick
