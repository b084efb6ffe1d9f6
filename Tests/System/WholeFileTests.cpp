#include <gmock/gmock.h>

#include "Platform/System/WholeFile.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

namespace proupsells::system {
namespace {

class WholeFile : public testing::Test {
protected:
    bool isAlone() const {
        return std::distance(std::filesystem::directory_iterator(folder.path()), std::filesystem::directory_iterator()) == 1;
    }

    tests::TemporaryFolder folder;
    std::filesystem::path file = folder.path() / "page.html";
};

TEST_F(WholeFile, TakesThePlaceOfWhatWasThere) {
    EXPECT_TRUE(writeWhole(file, "before"));
    EXPECT_TRUE(writeWhole(file, std::string("a\0b", 3)));

    EXPECT_EQ(tests::bytesOf(file), std::string("a\0b", 3));
    EXPECT_TRUE(isAlone());
}

TEST_F(WholeFile, FollowsNoLink) {
    const tests::TemporaryFolder elsewhere;
    const auto kept = elsewhere.write("kept", "kept");
    std::filesystem::create_symlink(kept, file);
    std::filesystem::create_symlink(kept, draftOf(file));

    EXPECT_TRUE(writeWhole(file, "page"));

    EXPECT_EQ(tests::bytesOf(kept), "kept");
    EXPECT_EQ(tests::bytesOf(file), "page");
    EXPECT_TRUE(isAlone());
}

TEST_F(WholeFile, LeavesNoDraftWhereItCannotTakeItsPlace) {
    std::filesystem::create_directories(file / "full");

    EXPECT_FALSE(writeWhole(file, "page"));

    EXPECT_TRUE(isAlone());
}

TEST_F(WholeFile, LeavesWhatWasThereWhereNoDraftCanBeWritten) {
    folder.write("page.html", "before");
    std::filesystem::create_directories(draftOf(file) / "full");

    EXPECT_FALSE(writeWhole(file, "page"));

    EXPECT_EQ(tests::bytesOf(file), "before");
}

TEST_F(WholeFile, IsRefusedWhereThereIsNoFolder) { EXPECT_FALSE(writeWhole(folder.path() / "none" / "page.html", "page")); }

} // namespace
} // namespace proupsells::system
