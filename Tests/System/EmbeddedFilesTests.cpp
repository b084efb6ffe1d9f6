#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Platform/System/EmbeddedFiles.hpp"
#include "Platform/System/Files.hpp"
#include "Platform/System/MappedFile.hpp"
#include "Platform/System/PathText.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

using namespace proupsells;

using system::EmbeddedFile;
using system::EmbeddedFiles;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

constexpr std::string_view bytes = "onetwothree";
constexpr const char* one = bytes.data();
constexpr const char* two = one + 3;
constexpr const char* three = two + 3;
constexpr const char* end = three + 5;

constexpr EmbeddedFile kitFiles[] = {
    {"Kit/Images/my picture.png", one, two},
    {"Kit/Images/Größe.png", two, three},
    {"Kit/Images/empty", two, two},
    {"Kit/de.lproj/Localizable.strings", three, end},
    {"Kit/readme", one, end},
    {"Kit2/readme", two, end},
};

std::filesystem::path inside(const char* name) { return EmbeddedFiles::root() / system::pathOf(name); }

class EmbeddedTable : public testing::Test {
protected:
    const EmbeddedFiles table{sorted()};

private:
    // Typed as they read best.
    static std::span<const EmbeddedFile> sorted() {
        static const auto files = [] {
            std::vector<EmbeddedFile> all(std::begin(kitFiles), std::end(kitFiles));
            std::sort(all.begin(), all.end(), [](const auto& a, const auto& b) { return std::string_view(a.name) < b.name; });
            return all;
        }();
        return files;
    }
};

TEST_F(EmbeddedTable, IsReadWithoutACopy) {
    const system::MappedFile mapped(inside("Kit/Images/my picture.png"));

    EXPECT_EQ(mapped.bytes(), "one");
    EXPECT_EQ(mapped.bytes().data(), one);
}

TEST_F(EmbeddedTable, HasFilesOfEveryName) {
    EXPECT_EQ(EmbeddedFiles::bytesOf(inside("Kit/Images/Größe.png")), "two");
    EXPECT_EQ(EmbeddedFiles::bytesOf(inside("Kit/Images/empty")), "");
    EXPECT_EQ(system::contentsOf(inside("Kit/de.lproj/Localizable.strings")), "three");
    EXPECT_EQ(EmbeddedFiles::bytesOf(inside("Kit/Images/none")), std::nullopt);
    EXPECT_EQ(system::contentsOf(inside("Kit/Images")), std::nullopt);
}

TEST_F(EmbeddedTable, HasFolders) {
    EXPECT_TRUE(system::isThere(EmbeddedFiles::root()));
    EXPECT_TRUE(system::isThere(inside("Kit")));
    EXPECT_TRUE(system::isThere(inside("Kit/")));
    EXPECT_TRUE(system::isThere(inside("Kit/readme")));
    EXPECT_TRUE(system::isFile(inside("Kit/readme")));
    EXPECT_FALSE(system::isFile(inside("Kit")));
    EXPECT_FALSE(system::isThere(inside("Ki")));
    EXPECT_FALSE(system::isThere(inside("Kit3")));
}

TEST_F(EmbeddedTable, ListsWhatIsRightInsideAFolder) {
    EXPECT_THAT(system::foldersIn(EmbeddedFiles::root()), ElementsAre(inside("Kit"), inside("Kit2")));
    EXPECT_THAT(system::foldersIn(inside("Kit")), ElementsAre(inside("Kit/Images"), inside("Kit/de.lproj")));
    EXPECT_THAT(system::filesIn(inside("Kit")), ElementsAre(inside("Kit/readme")));
    EXPECT_THAT(system::filesIn(inside("Kit/Images")),
                ElementsAre(inside("Kit/Images/Größe.png"), inside("Kit/Images/empty"), inside("Kit/Images/my picture.png")));
    EXPECT_THAT(system::filesIn(inside("Kit/readme")), IsEmpty());
}

TEST_F(EmbeddedTable, StandsBesideOthersAndTheFirstCounts) {
    const EmbeddedFile more[] = {{"Kit/extra", three, end}, {"Kit/readme", three, end}};
    const EmbeddedFiles other(more);

    EXPECT_EQ(EmbeddedFiles::bytesOf(inside("Kit/readme")), bytes);
    EXPECT_EQ(EmbeddedFiles::bytesOf(inside("Kit/extra")), "three");
    EXPECT_THAT(system::filesIn(inside("Kit")), ElementsAre(inside("Kit/extra"), inside("Kit/readme")));
}

TEST_F(EmbeddedTable, IsNoPartOfAnyFileSystem) {
    const tests::TemporaryFolder folder;
    const auto file = folder.write(system::textOf(EmbeddedFiles::root()) + "/Kit/readme", "a file");

    EXPECT_EQ(system::MappedFile(file).bytes(), "a file");
    EXPECT_EQ(EmbeddedFiles::bytesOf(file), std::nullopt);
    EXPECT_FALSE(EmbeddedFiles::isBelowRoot(system::textOf(EmbeddedFiles::root()) + "2/Kit"));
}

TEST(EmbeddedFiles, GoWithTheirTable) {
    {
        const EmbeddedFile file{"Kit/readme", one, end};
        const EmbeddedFiles table({&file, 1});
        EXPECT_TRUE(system::isThere(inside("Kit/readme")));
    }

    EXPECT_FALSE(EmbeddedFiles::areThere());
    EXPECT_FALSE(system::isThere(inside("Kit/readme")));
    EXPECT_FALSE(system::isThere(EmbeddedFiles::root()));
    EXPECT_TRUE(system::MappedFile(inside("Kit/readme")).bytes().empty());
}

std::string complaintAbout(std::initializer_list<EmbeddedFile> files) {
    const EmbeddedFiles table(std::span(files.begin(), files.size()));
    return EmbeddedFiles::complaint();
}

TEST(EmbeddedFiles, TellWhatIsWrongWithATable) {
    EXPECT_EQ(complaintAbout({{"a", one, two}, {"b", two, two}}), "");
    EXPECT_EQ(complaintAbout({}), "there are none");
    EXPECT_THAT(complaintAbout({{"a", one, two}, {nullptr, two, end}}), HasSubstr("number 1 has no name"));
    EXPECT_EQ(complaintAbout({{"", one, two}}), "number 0 has no name");
    EXPECT_THAT(complaintAbout({{"a", two, one}}), HasSubstr("a has no bytes"));
    EXPECT_THAT(complaintAbout({{"a", one, two}, {"c", nullptr, nullptr}}), HasSubstr("c has no bytes"));
    EXPECT_THAT(complaintAbout({{"b", one, two}, {"a", one, two}}), HasSubstr("a is out of order"));
    EXPECT_THAT(complaintAbout({{"a", one, two}, {"a", one, two}}), HasSubstr("a is out of order"));
}

} // namespace
