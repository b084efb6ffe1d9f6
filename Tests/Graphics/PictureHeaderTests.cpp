#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "Platform/Graphics/PictureHeader.hpp"

namespace proupsells::graphics {
namespace {

constexpr std::uint64_t fileSize = 1000;

const PictureHeader twoSizes{{24.5, 16}, {{25, 16, 52, 100}, {49, 32, 152, 848}}};

TEST(PictureHeader, ReadsWhatItWrites) {
    const std::string bytes = twoSizes.bytes();

    EXPECT_EQ(bytes.size(), PictureHeader::byteCount(2));
    EXPECT_EQ(PictureHeader::parse(bytes, fileSize), twoSizes);
    EXPECT_EQ(PictureHeader::parse(bytes + "pixels", fileSize), twoSizes);
}

// Files of today are read tomorrow.
TEST(PictureHeader, HasItsNumbersBehindTheNameOfTheFormatTheLowestByteFirst) {
    const PictureHeader oneSize{{24.5, 16}, {{25, 0x0102, 36, 100}}};
    const std::string_view numbers("\xB4\x5F\0\0\x80\x3E\0\0\1\0\0\0\x19\0\0\0\2\1\0\0\x24\0\0\0\x64\0\0\0", 28);

    EXPECT_EQ(oneSize.bytes(), std::string("\x93Pict\r\n\x02", 8) + std::string(numbers));
}

TEST(PictureHeader, IsAbsentWhereTheFileIsCutOff) {
    const std::string bytes = twoSizes.bytes();

    for (std::size_t length = 0; length < bytes.size(); ++length)
        EXPECT_EQ(PictureHeader::parse(std::string_view(bytes).substr(0, length), fileSize), std::nullopt) << length;
    EXPECT_EQ(PictureHeader::parse(bytes, fileSize - 1), std::nullopt);
}

TEST(PictureHeader, IsAbsentInOtherFilesAndOtherVersions) {
    std::string otherVersion = twoSizes.bytes();
    otherVersion[7] = 1;

    EXPECT_EQ(PictureHeader::parse(otherVersion, fileSize), std::nullopt);
    EXPECT_EQ(PictureHeader::parse("<svg width='24' height='16' viewBox='0 0 24 16'></svg>", fileSize), std::nullopt);
}

TEST(PictureHeader, IsAbsentWhereANumberMakesNoSense) {
    const auto isRead = [](const PictureHeader& header) { return PictureHeader::parse(header.bytes(), fileSize).has_value(); };

    ASSERT_TRUE(isRead({{1, 1}, {{1, 1, 36, 1}}}));
    EXPECT_FALSE(isRead({{0, 1}, {{1, 1, 36, 1}}}));
    EXPECT_FALSE(isRead({{1, 0}, {{1, 1, 36, 1}}}));
    EXPECT_FALSE(isRead({{1, 1}, {}}));
    EXPECT_FALSE(isRead({{1, 1}, std::vector<PictureHeader::Variant>(65, {1, 1, 36, 1})}));
    EXPECT_FALSE(isRead({{1, 1}, {{0, 1, 36, 1}}}));
    EXPECT_FALSE(isRead({{1, 1}, {{1, 32768, 36, 1}}}));
    EXPECT_FALSE(isRead({{1, 1}, {{1, 1, 36, 0}}}));
    EXPECT_FALSE(isRead({{1, 1}, {{1, 1, 36, 965}}}));
    EXPECT_FALSE(isRead({{1, 1}, {{1, 1, 0xFFFFFFFF, 0xFFFFFFFF}}}));
}

RC_GTEST_PROP(PictureHeaderInvariants, LeadsNowhereOutsideOfTheFile, ()) {
    std::string bytes = twoSizes.bytes();
    const auto place = *rc::gen::inRange<std::size_t>(8, bytes.size());
    bytes[place] = *rc::gen::arbitrary<char>();

    if (const auto header = PictureHeader::parse(bytes, fileSize)) {
        RC_ASSERT(header->naturalSize.width > 0 && header->naturalSize.height > 0);
        for (const PictureHeader::Variant& variant : header->variants)
            RC_ASSERT(std::uint64_t(variant.offset) + variant.byteCount <= fileSize);
    }
}

} // namespace
} // namespace proupsells::graphics
