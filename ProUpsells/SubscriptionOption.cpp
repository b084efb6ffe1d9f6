#include "ProUpsells/SubscriptionOption.hpp"

#include <utility>

namespace proupsells {

namespace {

const std::optional<std::string> absentText;
const std::string emptyText;

} // namespace

SubscriptionOption::SubscriptionOption(std::string SKU, SubscriptionType type, bool hasUsedFreeTrial)
    : m_SKU(std::move(SKU)), m_type(std::move(type)), m_hasUsedFreeTrial(hasUsedFreeTrial) {}

const std::string& SubscriptionOption::price() const {
    return std::visit([](const auto& plan) -> const std::string& { return plan.price; }, m_type.plan);
}

const std::optional<std::string>& SubscriptionOption::introductoryPrice() const {
    if (const auto* monthly = std::get_if<SubscriptionType::Monthly>(&m_type.plan)) return monthly->introductoryPrice;
    if (const auto* yearly = std::get_if<SubscriptionType::Yearly>(&m_type.plan)) return yearly->introductoryPrice;
    return absentText;
}

const std::optional<std::string>& SubscriptionOption::introductoryPeriodLength() const {
    if (const auto* monthly = std::get_if<SubscriptionType::Monthly>(&m_type.plan)) return monthly->introductoryPeriodLength;
    if (const auto* yearly = std::get_if<SubscriptionType::Yearly>(&m_type.plan)) return yearly->introductoryPeriodLength;
    return absentText;
}

const std::string& SubscriptionOption::monthlyEffectivePrice() const {
    const auto* yearly = std::get_if<SubscriptionType::Yearly>(&m_type.plan);
    return yearly ? yearly->monthlyEffectivePrice : emptyText;
}

bool SubscriptionOption::isSameSubscriptionCategory(const SubscriptionOption& other) const {
    return m_type.plan.index() == other.m_type.plan.index();
}

} // namespace proupsells
