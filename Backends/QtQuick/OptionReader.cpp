#include "Backends/QtQuick/OptionReader.hpp"

#include <QVariantMap>
#include <optional>

#include "Platform/Commons/DefaultLogger.hpp"

namespace proupsells::qtquick {

namespace {

using Type = SubscriptionOption::SubscriptionType;

std::string text(const QVariantMap& option, const char* key) { return option.value(key).toString().toStdString(); }

std::optional<std::string> optionalText(const QVariantMap& option, const char* key) {
    return option.contains(key) ? std::optional(text(option, key)) : std::nullopt;
}

std::optional<Type> typeOf(const QVariantMap& option) {
    const std::string period = text(option, "period"), price = text(option, "price");
    const auto introductory = optionalText(option, "introductoryPrice"), trial = optionalText(option, "trial");
    if (period == "monthly") return Type::Monthly{price, introductory, trial};
    if (period == "yearly") return Type::Yearly{price, text(option, "monthlyPrice"), introductory, trial};
    if (period == "lifetime") return Type::Lifetime{price};
    return std::nullopt;
}

// What an option lacks; null for nothing.
const char* whatIsMissing(const QVariantMap& option) {
    for (const char* key : {"sku", "period", "price"})
        if (text(option, key).empty()) return key;
    return text(option, "period") == "yearly" && text(option, "monthlyPrice").empty() ? "monthlyPrice" : nullptr;
}

void complain(qsizetype number, const std::string& reason) {
    commons::DefaultLogger::shared().log(commons::DefaultLogger::errorSeverity,
                                         "Paywall - option number " + std::to_string(number) + " is left out: " + reason,
                                         "options");
}

} // namespace

std::vector<SubscriptionOption> readOptions(const QVariantList& options) {
    std::vector<SubscriptionOption> read;
    for (qsizetype index = 0; index < options.size(); ++index) {
        const QVariantMap option = options[index].toMap();
        const char* const missing = whatIsMissing(option);
        const std::optional<Type> type = missing ? std::nullopt : typeOf(option);
        if (type)
            read.emplace_back(text(option, "sku"), *type, option.value("hasUsedFreeTrial").toBool());
        else if (missing)
            complain(index + 1, std::string("it has no \"") + missing + '"');
        else
            complain(index + 1, "its \"period\" is none of \"monthly\", \"yearly\" and \"lifetime\"");
    }
    return read;
}

} // namespace proupsells::qtquick
