#include <gtest/gtest.h>

#include "Platform/System/PathText.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

using namespace proupsells;

using system::pathOf;
using system::textOf;

namespace {

TEST(PathText, IsUtf8) {
    EXPECT_EQ(textOf(std::filesystem::path(u8"Größe") / u8"図.svg"), "Gr\xC3\xB6\xC3\x9F"
                                                                     "e/\xE5\x9B\xB3.svg");
    EXPECT_EQ(textOf({}), "");
}

TEST(PathText, BecomesThePathAgain) {
    for (const char* text : {"", "plain.txt", "/folder/with blanks/", "../Größe/図.svg", "\xF0\x9F\x8E\x88"})
        EXPECT_EQ(textOf(pathOf(text)), text);
    EXPECT_EQ(pathOf("Gr\xC3\xB6\xC3\x9F"
                     "e"),
              std::filesystem::path(u8"Größe"));
}

TEST(PathText, FindsTheFileOfThatName) {
    const tests::TemporaryFolder folder;
    folder.write("図.txt", "found");

    EXPECT_EQ(tests::bytesOf(folder.path() / pathOf("図.txt")), "found");
    EXPECT_EQ(textOf(std::filesystem::directory_iterator(folder.path())->path().filename()), "図.txt");
}

} // namespace
