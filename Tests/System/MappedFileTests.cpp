#include <gtest/gtest.h>

#include "Platform/System/MappedFile.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

using namespace proupsells;

using system::MappedFile;

namespace {

TEST(MappedFile, HasTheBytesOfTheFile) {
    const tests::TemporaryFolder folder;
    const std::string bytes = std::string("one\r\ntwo\0three\x1A", 15) + std::string(100'000, '\xFF');

    const MappedFile mapped(folder.write("Größe.bytes", bytes));

    EXPECT_EQ(mapped.bytes(), bytes);
}

TEST(MappedFile, HasNoBytesWhereTheFileIsEmptyAbsentOrAFolder) {
    const tests::TemporaryFolder folder;

    EXPECT_TRUE(MappedFile(folder.write("empty", "")).bytes().empty());
    EXPECT_TRUE(MappedFile(folder.path() / "absent").bytes().empty());
    EXPECT_TRUE(MappedFile(folder.path()).bytes().empty());
}

} // namespace
