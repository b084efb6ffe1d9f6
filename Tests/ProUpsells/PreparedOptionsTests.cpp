#include "ProUpsells/PreparedOptions.hpp"

#include <algorithm>

#include <gmock/gmock.h>
#include <rapidcheck.h>

#include "Tests/ProUpsells/Offers.hpp"

namespace proupsells::tests {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(PreparedOptions, PutYearlyFirstAndDropLifetime) {
    EXPECT_THAT(identifiers(preparedOptions({monthly("", {}, "A"), lifetime("", "L"), yearly("", {}, "Y")})),
                ElementsAre("Y", "A"));
}

TEST(PreparedOptions, KeepTheGivenOrderOfAKind) {
    EXPECT_THAT(identifiers(preparedOptions({yearly("", {}, "Y1"), monthly("", {}, "A"), yearly("", {}, "Y2")})),
                ElementsAre("Y1", "Y2", "A"));
}

TEST(PreparedOptions, MayBeNone) { EXPECT_THAT(preparedOptions({lifetime()}), IsEmpty()); }

TEST(PreparedOptions, AreTheYearlyOnesThenTheMonthlyOnesOfAnyList) {
    EXPECT_TRUE(rc::check("order of plans", [] {
        const auto kinds = *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 3));
        std::vector<SubscriptionOption> options;
        std::vector<std::string> yearlyOnes, monthlyOnes;
        for (std::size_t i = 0; i < kinds.size(); ++i) {
            const std::string SKU = std::to_string(i);
            options.push_back(kinds[i] == 0 ? yearly("", {}, SKU) : kinds[i] == 1 ? monthly("", {}, SKU) : lifetime("", SKU));
            if (kinds[i] == 0) yearlyOnes.push_back(SKU);
            if (kinds[i] == 1) monthlyOnes.push_back(SKU);
        }
        yearlyOnes.insert(yearlyOnes.end(), monthlyOnes.begin(), monthlyOnes.end());

        RC_ASSERT(identifiers(preparedOptions(options)) == yearlyOnes);
    }));
}

} // namespace
} // namespace proupsells::tests
