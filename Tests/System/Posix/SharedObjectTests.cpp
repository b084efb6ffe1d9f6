#include <gmock/gmock.h>

#include "Platform/System/BecomeProgram.hpp"
#include "Platform/System/ProgramFile.hpp"
#include "Platform/System/SharedObject.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

using namespace proupsells;

using system::SharedObject;
using testing::HasSubstr;

namespace {

const std::filesystem::path library = std::filesystem::weakly_canonical(PROUPSELLS_LOADED_LIBRARY);

struct ToldFiles {
    std::filesystem::path own, program;
};

ToldFiles filesToldBy(SharedObject& object) {
    const auto tellFiles = reinterpret_cast<void (*)(std::filesystem::path&, std::filesystem::path&)>(object.function("tellFiles"));
    ToldFiles told;
    if (tellFiles) tellFiles(told.own, told.program);
    return told;
}

TEST(ProgramFile, IsTheOneThatRunsTheTest) {
    EXPECT_EQ(system::programFile().filename(), PROUPSELLS_TEST_PROGRAM);
    EXPECT_TRUE(std::filesystem::is_regular_file(system::programFile()));
}

TEST(OwnFile, IsTheProgramForWhatWasLinkedIntoIt) { EXPECT_EQ(system::ownFile(), system::programFile()); }

TEST(OwnFileDeathTest, IsTheProgramWhateverNameThatWasStartedBy) {
    char name[] = "no such file", filter[] = "--gtest_filter=OwnFile.IsTheProgramForWhatWasLinkedIntoIt";
    char* const arguments[] = {name, filter, nullptr};

    EXPECT_EXIT(system::becomeProgram(system::programFile(), arguments), testing::ExitedWithCode(0), "");
}

TEST(OwnFile, IsTheLibraryForWhatWasLinkedIntoThat) {
    SharedObject object(library);

    const ToldFiles told = filesToldBy(object);

    EXPECT_EQ(told.own, library);
    EXPECT_EQ(told.program, system::programFile());
}

TEST(OwnFile, IsTheWholePathOfALibraryThatIsNamedFromHere) {
    const tests::TemporaryFolder folder;
    const auto copy = std::filesystem::canonical(folder.path()) / "copy.so";
    std::filesystem::copy_file(library, copy);
    SharedObject object(std::filesystem::relative(copy));

    EXPECT_EQ(filesToldBy(object).own, copy);
}

TEST(SharedObject, FindsTheFunctionsOfALibrary) {
    SharedObject object(library);

    EXPECT_TRUE(object.function("tellFiles"));
    EXPECT_EQ(object.complaint(), "");
}

TEST(SharedObject, SaysWhichFunctionThereIsNot) {
    SharedObject object(library);

    EXPECT_FALSE(object.function("sayNothing"));
    EXPECT_THAT(object.complaint(), HasSubstr("sayNothing"));
    EXPECT_TRUE(object.function("tellFiles"));
    EXPECT_EQ(object.complaint(), "");
}

TEST(SharedObject, SaysWhyALibraryCannotBeLoaded) {
    const tests::TemporaryFolder folder;
    SharedObject absent(folder.path() / "absent.so"), broken(folder.write("Größe.so", "no library"));

    EXPECT_FALSE(absent.function("tellFiles"));
    EXPECT_THAT(absent.complaint(), HasSubstr("absent.so"));
    EXPECT_FALSE(broken.function("tellFiles"));
    EXPECT_THAT(broken.complaint(), HasSubstr("Größe.so"));
}

} // namespace
