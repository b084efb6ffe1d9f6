#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

#include "Platform/Foundation/Bundle.hpp"
#include "Platform/Foundation/Locale.hpp"
#include "Platform/Foundation/ResourcePlace.hpp"
#include "Platform/Foundation/Resources.hpp"
#include "Platform/System/EmbeddedFiles.hpp"
#include "Platform/System/PathText.hpp"
#include "Platform/System/ProgramFile.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

using namespace proupsells;

using foundation::findResource;
using foundation::resourcePlaces;
using testing::Contains;

namespace {

class ResourcePlaces : public testing::Test {
protected:
    ~ResourcePlaces() override { foundation::setResourceRoot({}); }

    std::filesystem::path made(const char* name) const {
        std::filesystem::create_directories(folder.path() / name);
        return folder.path() / name;
    }

    tests::TemporaryFolder folder;
};

TEST_F(ResourcePlaces, AreLookedForNearTheProgramAndUpToThreeFoldersAbove) {
    std::filesystem::path near = system::programFile().parent_path();
    if (near.empty()) GTEST_SKIP() << "this system does not tell the program's file";

    EXPECT_EQ(resourcePlaces().front(), near / "share" / "proupsells");
    EXPECT_THAT(resourcePlaces(), Contains(near.parent_path() / "share" / "proupsells"));
}

TEST_F(ResourcePlaces, AreTheHostsOwnBeforeAllOthers) {
    const auto own = made("own/Kit");
    foundation::setResourceRoot(folder.path() / "own");

    EXPECT_EQ(findResource("Kit"), own);
    EXPECT_EQ(findResource("Other"), std::nullopt);
}

TEST_F(ResourcePlaces, MayBeSingleFiles) {
    std::ofstream(made("own") / "offers.json") << "{}";
    foundation::setResourceRoot(folder.path() / "own");

    EXPECT_EQ(findResource("offers.json"), folder.path() / "own/offers.json");
}

TEST_F(ResourcePlaces, AreFoundWhereThePackageWasNamed) {
    const auto named = made("paqué/Kit");
    const foundation::ResourcePlace place(system::textOf(folder.path() / "paqué").c_str());
    const foundation::ResourcePlace again(system::textOf(folder.path() / "paqué").c_str());

    EXPECT_EQ(findResource("Kit"), named);
    EXPECT_THAT(resourcePlaces(), Contains(folder.path() / "paqué").Times(1));
}

TEST_F(ResourcePlaces, AreNeeded) {
    const auto own = made("own/Kit");
    foundation::setResourceRoot(folder.path() / "own");

    EXPECT_EQ(foundation::requiredResource("Kit"), own);
}

constexpr std::string_view text = "\"Close\" = \"Schließen\";";
constexpr system::EmbeddedFile embedded[] = {{"Kit/de.lproj/Localizable.strings", text.data(), text.data() + text.size()}};

TEST_F(ResourcePlaces, AreInsideTheProgramAfterTheHostsOwn) {
    const system::EmbeddedFiles files(embedded);
    const auto named = made("named/Kit"), own = made("own/Kit");
    const foundation::ResourcePlace place(system::textOf(named.parent_path()).c_str());

    EXPECT_EQ(findResource("Kit"), system::EmbeddedFiles::root() / "Kit");
    EXPECT_EQ(resourcePlaces().front(), system::EmbeddedFiles::root());
    foundation::setResourceRoot(folder.path() / "own");
    EXPECT_EQ(findResource("Kit"), own);
}

TEST_F(ResourcePlaces, AreAskedFurtherForWhatIsNotInsideTheProgram) {
    const system::EmbeddedFiles files(embedded);
    const auto other = made("named/Other");
    const foundation::ResourcePlace place(system::textOf(other.parent_path()).c_str());

    EXPECT_EQ(findResource("Other"), other);
}

TEST_F(ResourcePlaces, InsideTheProgramMakeBundles) {
    const system::EmbeddedFiles files(embedded);
    const auto previous = foundation::Locale::current();
    foundation::Locale::setCurrent(foundation::Locale("de_AT"));

    const foundation::Bundle bundle(foundation::requiredResource("Kit"));

    EXPECT_EQ(bundle.localizedString("Close"), "Schließen");
    EXPECT_EQ(bundle.pathForResource("Localizable", "strings"),
              system::EmbeddedFiles::root() / "Kit" / "de.lproj" / "Localizable.strings");
    EXPECT_EQ(bundle.pathForResource("Other", "strings"), std::nullopt);
    foundation::Locale::setCurrent(previous);
}

using ResourcePlacesDeathTest = ResourcePlaces;

TEST_F(ResourcePlacesDeathTest, StopTheProgramWhereTheyAreMissingAndNameEveryPlace) {
    foundation::setResourceRoot(folder.path() / "own");
    for (const auto& place : resourcePlaces())
        EXPECT_DEATH(foundation::requiredResource("Nowhere"),
                     "The resources of Nowhere were looked for in vain in .*" + system::textOf(place) +
                         ".*; name their folder with proupsells::foundation::setResourceRoot\\(\\)");
}

TEST_F(ResourcePlacesDeathTest, StopTheProgramWhereTheyAreMissingInsideItToo) {
    const system::EmbeddedFiles files(embedded);

    EXPECT_DEATH(foundation::requiredResource("Nowhere"), "in vain in <inside the program>, .*setResourceRoot");
}

TEST_F(ResourcePlacesDeathTest, StopTheProgramWhereTheirTableIsBroken) {
    const system::EmbeddedFile broken[] = {{"Kit/picture", text.data() + 1, text.data()}};
    const system::EmbeddedFiles files(broken);

    EXPECT_DEATH(foundation::findResource("Kit"), "The resources inside the program are broken: Kit/picture has no bytes");
}

} // namespace
