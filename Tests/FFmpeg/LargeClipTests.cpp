// Clips that would take more memory and time than any screen is worth, and files that are no clips.
#include <gtest/gtest.h>

#include "Tests/FFmpeg/Clips.hpp"
#include "Tests/Support/Sanitizers.hpp"
#include "Tests/Support/UsedMemory.hpp"

namespace proupsells::tests {

using ffmpegbackend::LazyClipDecoder;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

const std::filesystem::path large = "Tests/FFmpeg/Data/large.mp4";

// The large clip as its file's table of contents would describe it: pictures of another size, in another coding.
std::string described(const std::string& coding, int width, int height) {
    std::string bytes = bytesOf(large);
    // A visual sample entry: its type, 6 bytes of zeros, 2 of a reference, 16 that mean nothing, and the size; ISO/IEC 14496-12.
    const std::size_t entry = bytes.find("avc1", bytes.find("stsd"));
    bytes.replace(entry, 4, coding);
    constexpr std::size_t toSize = 4 + 6 + 2 + 16;
    const auto put = [&](std::size_t at, int value) {
        bytes[at] = char(value >> 8);
        bytes[at + 1] = char(value);
    };
    put(entry + toSize, width);
    put(entry + toSize + 2, height);
    return bytes;
}

} // namespace

class LargeClip : public ClipTest {};

TEST_F(LargeClip, IsRefusedByItsSizeAlone) {
    // Apple's run-length coding, whose decoder makes a picture of the declared size out of anything.
    const auto file = fileWith(described("rle ", 16'384, 16'384));
    LazyClipDecoder decoder = exactDecoder();
    const std::size_t before = usedMemory_bytes();
    const auto clip = decoder.open(file);

    EXPECT_FALSE(clip->frameAt(0).picture);

    EXPECT_FALSE(clip->isPlayable());
    EXPECT_THAT(complaints(),
                ElementsAre("The clip \"clip.mp4\" cannot be played: its pictures are 16384 by 16384 pixels, expected "
                            "at most as many as 3840 by 2176 have"));
    EXPECT_LT(usedMemory_bytes(), before + (64u << 20));
}

TEST_F(LargeClip, OfTheGreatestSizeIsNotRefused) {
    const auto file = fileWith(described("avc1", 3840, 2176));
    LazyClipDecoder decoder = exactDecoder();

    EXPECT_TRUE(decoder.open(file)->frameAt(0).picture);
    EXPECT_FALSE(decoder.open(fileWith(described("avc1", 3840, 2177), "larger.mp4"))->frameAt(0).picture);
    EXPECT_FALSE(decoder.open(fileWith(described("avc1", 3841, 2176), "wider.mp4"))->frameAt(0).picture);
    EXPECT_THAT(complaints(),
                ElementsAre(HasSubstr("its pictures are 3840 by 2177 pixels"), HasSubstr("its pictures are 3841 by 2176 pixels")));
}

TEST_F(LargeClip, IsClosedWhileItIsNotShown) {
    if (isSanitized) GTEST_SKIP() << "sanitizers keep what is given back";
    constexpr int count = 12;
    constexpr double frame_s = 1.0 / 30;
    LazyClipDecoder decoder = exactDecoder();
    std::vector<std::shared_ptr<host::Clip>> clips;
    decoder.open(counting)->frameAt(0);
    const std::size_t before = residentMemory_bytes();
    for (int number = 0; number < count; ++number) {
        clips.push_back(decoder.open(fileWith(bytesOf(large), std::to_string(number) + ".mp4")));
        for (int frame = 0; frame < 90; ++frame) clips.back()->frameAt(frame * frame_s);
    }

    EXPECT_LT(residentMemory_bytes(), before + (250u << 20));
    const auto again = clips.front()->frameAt(0.5), fresh = exactDecoder().open(large)->frameAt(0.5);
    ASSERT_TRUE(again.picture && fresh.picture);
    EXPECT_EQ(again.time_s, fresh.time_s);
    EXPECT_EQ(again.picture->pixels, fresh.picture->pixels);
    EXPECT_THAT(complaints(), testing::IsEmpty());
}

TEST_F(LargeClip, TakesNoMoreMemoryTheLongerItPlays) {
    if (isSanitized) GTEST_SKIP() << "sanitizers keep what is given back";
    LazyClipDecoder decoder = exactDecoder();
    const auto clip = decoder.open(counting);
    const auto playRounds = [&](int count) {
        for (int picture = 0; picture < 20 * count; ++picture) clip->frameAt(picture * 0.1);
    };
    playRounds(20);
    const std::size_t before = usedMemory_bytes();
    playRounds(200);

    // A hundred bytes for each picture would be 400 KB.
    EXPECT_LT(usedMemory_bytes(), before + (100u << 10));
}

TEST_F(LargeClip, ThatIsAPictureIsRefused) {
    // A canvas of 20,000 by 20,000 with a picture of one point in it.
    std::string gif = "GIF89a";
    gif += {'\x20', '\x4E', '\x20', '\x4E', '\x80', 0, 0, 0, 0, 0, '\xFF', '\xFF', '\xFF'};
    gif += {',', 0, 0, 0, 0, 1, 0, 1, 0, 0, 2, 2, 'D', 1, 0, ';'};
    LazyClipDecoder decoder = exactDecoder();
    const auto clip = decoder.open(fileWith(gif));

    EXPECT_FALSE(clip->frameAt(0).picture);

    EXPECT_THAT(complaints(), ElementsAre(HasSubstr("\"clip.mp4\" cannot be played")));
}

TEST_F(LargeClip, ThatNamesOtherFilesOpensNone) {
    const auto film = std::filesystem::absolute(large);
    LazyClipDecoder decoder = exactDecoder();
    const auto list = decoder.open(fileWith("ffconcat version 1.0\nfile '" + film.string() + "'\n", "list.mp4"));
    const auto address =
        decoder.open(fileWith("#EXTM3U\n#EXT-X-TARGETDURATION:1\n#EXTINF:1,\n" + film.string() + "\n", "index.mp4"));

    EXPECT_FALSE(list->frameAt(0).picture);
    EXPECT_FALSE(address->frameAt(0).picture);

    EXPECT_THAT(complaints(), ElementsAre(HasSubstr("\"list.mp4\" cannot be played"), HasSubstr("\"index.mp4\" cannot be played")));
}

} // namespace proupsells::tests
