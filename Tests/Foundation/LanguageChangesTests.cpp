#include "Platform/Foundation/LanguageChanges.hpp"

#include "Platform/Foundation/BuiltInLocaleServices.hpp"
#include "Tests/Foundation/LocaleFixture.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

using namespace proupsells;

using foundation::Bundle;
using foundation::LanguageChanges;
using foundation::Locale;
using foundation::LocaleServices;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Language : public tests::LocaleFixture {
protected:
    // What each change said when it was told: the language, and a text of it.
    std::vector<std::string> told;
    const std::uint64_t before = LanguageChanges::count();
    combine::AnyCancellable listener = LanguageChanges::publisher().sink(
        [this](std::uint64_t count) { told.push_back(Locale::current().identifier() + " " + std::to_string(count - before)); });
};

TEST_F(Language, IsTellingOfEachChangeOfTheLocale) {
    Locale::setCurrent(Locale("de_AT"));
    Locale::setCurrent(Locale("fr_FR"));

    EXPECT_THAT(told, ElementsAre("de_AT 1", "fr_FR 2"));
    EXPECT_EQ(LanguageChanges::count(), before + 2);
}

TEST_F(Language, IsNotChangedByTheSameLocaleAgain) {
    Locale::setCurrent(Locale("en-US"));

    EXPECT_THAT(told, IsEmpty());
    EXPECT_EQ(LanguageChanges::count(), before);
}

TEST_F(Language, ChangesWithTheMainBundleButNotWithTheSameFolderAgain) {
    const tests::TemporaryFolder folder;
    Bundle::setMain(folder.path());
    const Bundle* const bundle = &Bundle::main();
    Bundle::setMain(folder.path());

    EXPECT_THAT(told, ElementsAre("en_US 1"));
    EXPECT_EQ(&Bundle::main(), bundle);
}

TEST_F(Language, ChangesWithTheLocaleServicesButNotWithTheSameOnesAgain) {
    const auto services = std::make_shared<const foundation::BuiltInLocaleServices>();
    EXPECT_EQ(LocaleServices::setCurrent(services), nullptr);
    EXPECT_EQ(LocaleServices::setCurrent(services), services);
    EXPECT_EQ(LocaleServices::setCurrent(nullptr), services);

    EXPECT_THAT(told, ElementsAre("en_US 1", "en_US 2"));
}

TEST_F(Language, MayBeChangedByWhoeverIsToldOfAChange) {
    const auto second = LanguageChanges::publisher().sink([](std::uint64_t) { Locale::setCurrent(Locale("it")); });

    Locale::setCurrent(Locale("de"));

    EXPECT_EQ(Locale::current(), Locale("it"));
    EXPECT_EQ(LanguageChanges::count(), before + 2);
}

} // namespace
