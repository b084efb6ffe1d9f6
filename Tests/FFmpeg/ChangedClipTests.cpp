// Clips whose tables say something else than they did, and those that change while they are shown.
#include <algorithm>
#include <fstream>

#include "Tests/FFmpeg/Clips.hpp"

namespace proupsells::tests {

using ffmpegbackend::LazyClipDecoder;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

// Four bytes of a box, counted from behind its name; ISO/IEC 14496-12.
void put(std::string& bytes, const char* box, std::size_t offset, std::uint32_t number) {
    const std::size_t at = bytes.find(box) + 4 + offset;
    for (const int shift : {24, 16, 8, 0}) bytes[at + std::size_t(3 - shift / 8)] = char(number >> shift);
}

std::uint32_t numberIn(const std::string& bytes, const char* box, std::size_t offset) {
    const std::size_t at = bytes.find(box) + 4 + offset;
    std::uint32_t number = 0;
    for (std::size_t index = 0; index < 4; ++index) number = number << 8 | std::uint8_t(bytes[at + index]);
    return number;
}

// Where a packet of the counting clip lies.
std::pair<std::size_t, std::size_t> placeOfPacket(const std::string& bytes, std::size_t packet) {
    std::size_t begin = numberIn(bytes, "stco", 8);
    for (std::size_t index = 0; index < packet; ++index) begin += numberIn(bytes, "stsz", 12 + 4 * index);
    return {begin, begin + numberIn(bytes, "stsz", 12 + 4 * packet)};
}

// The counting clip with nothing in a packet.
std::string withEmptyPacket(std::size_t packet) {
    std::string bytes = bytesOf(countingIndexFirst);
    const auto [begin, end] = placeOfPacket(bytes, packet);
    put(bytes, "stsz", 12 + 4 * packet, 0);
    const std::size_t sizeOfAll = bytes.find("mdat") - 4;
    bytes.erase(begin, end - begin);
    put(bytes, "free", 0, std::uint32_t(bytes.size() - sizeOfAll)); // the length of the box that follows the empty one
    return bytes;
}

// The counting clip as if it had only seventeen pictures, the last of which stands by itself.
std::string seventeenPictures() {
    std::string bytes = bytesOf(countingIndexFirst);
    put(bytes, "stsz", 8, 17);
    put(bytes, "stts", 8, 17);
    put(bytes, "mdhd", 16, 17 * 1024);
    put(bytes, "mvhd", 16, 1700);
    put(bytes, "tkhd", 20, 1700);
    put(bytes, "elst", 8, 1700);
    return bytes;
}

class ChangedClip : public ClipTest {
protected:
    std::vector<int> numbersAt(const std::filesystem::path& file, std::initializer_list<double> times_s) {
        LazyClipDecoder decoder = exactDecoder();
        const auto clip = decoder.open(file);
        std::vector<int> numbers;
        for (const double time_s : times_s) numbers.push_back(numberOf(clip->frameAt(time_s)));
        return numbers;
    }
};

} // namespace

// The pictures of the numbers 8 and 16 stand by themselves.
TEST_F(ChangedClip, GoesOnAtTheNextKeyPictureBehindAPacketWithNothingInIt) {
    for (const std::size_t packet : {3, 4, 5}) {
        SCOPED_TRACE(packet);
        const auto file = fileWith(withEmptyPacket(packet));

        EXPECT_THAT(numbersAt(file, {0.05, 0.85, 0.95, 1.65, 1.95, 2.05}), ElementsAre(0, 8, 9, 16, 19, 0));
    }
    EXPECT_THAT(complaints(), IsEmpty());
}

TEST_F(ChangedClip, LastsAsLongAsItsFileWhereItsPicturesDoNotSay) {
    std::string bytes = bytesOf(countingIndexFirst);
    put(bytes, "mdhd", 16, 0);

    EXPECT_THAT(numbersAt(fileWith(bytes), {0.05, 0.15, 0.55, 1.05, 1.95, 2.05}), ElementsAre(0, 1, 5, 10, 19, 0));
    EXPECT_THAT(complaints(), IsEmpty());
}

TEST_F(ChangedClip, LastsAsLongAsAPictureWhereNothingSays) {
    std::string bytes = bytesOf(countingIndexFirst);
    put(bytes, "mdhd", 16, 0);
    put(bytes, "mvhd", 16, 0);

    EXPECT_THAT(numbersAt(fileWith(bytes), {0.05, 0.15, 0.55, 1.05, 1.95}), ElementsAre(0, 0, 0, 0, 0));
    EXPECT_THAT(complaints(), IsEmpty());
}

TEST_F(ChangedClip, EndsBeforeALastPictureOfWhichAByteIsMissing) {
    const std::string whole = seventeenPictures();
    const auto [begin, end] = placeOfPacket(whole, 16);

    EXPECT_THAT(numbersAt(fileWith(whole), {1.55, 1.65, 1.75}), ElementsAre(15, 16, 0));
    EXPECT_THAT(numbersAt(fileWith(whole.substr(0, end), "exact.mp4"), {1.55, 1.65, 1.75}), ElementsAre(15, 16, 0));
    EXPECT_THAT(complaints(), IsEmpty());

    EXPECT_THAT(numbersAt(fileWith(whole.substr(0, end - 1), "byte.mp4"), {1.55, 1.65, 1.75}), ElementsAre(15, 0, 1));
    EXPECT_THAT(numbersAt(fileWith(whole.substr(0, begin), "picture.mp4"), {1.55, 1.65, 1.75}), ElementsAre(15, 0, 1));
    EXPECT_THAT(complaints(), ElementsAre(HasSubstr("\"byte.mp4\" is cut short"), HasSubstr("\"picture.mp4\" is cut short")));
}

TEST_F(ChangedClip, EndsBeforeAKeyPictureThatWasNeverWrittenThoughThereIsMoreBehindIt) {
    std::string bytes = bytesOf(countingIndexFirst);
    const auto [begin, end] = placeOfPacket(bytes, 16);
    std::fill(bytes.begin() + std::ptrdiff_t(begin), bytes.begin() + std::ptrdiff_t(end), '\0');

    EXPECT_THAT(numbersAt(fileWith(bytes), {1.55, 1.65, 1.75}), ElementsAre(15, 0, 1));
    EXPECT_THAT(complaints(), ElementsAre(HasSubstr("is cut short")));
}

TEST_F(ChangedClip, StaysAtItsFirstPictureWithThatOnesTimeWhereTheNextOnesAreBroken) {
    std::string bytes = bytesOf(countingIndexFirst);
    const std::size_t begin = placeOfPacket(bytes, 1).first, end = placeOfPacket(bytes, 16).first;
    std::fill(bytes.begin() + std::ptrdiff_t(begin), bytes.begin() + std::ptrdiff_t(end), '\xFF');
    const auto file = fileWith(bytes);

    for (const double time_s : {0.05, 0.55, 0.95, 1.05, 1.55}) {
        LazyClipDecoder decoder = exactDecoder();
        const auto clip = decoder.open(file);
        for (const bool isFirstLook : {true, false}) {
            if (!isFirstLook) clip->frameAt(1.75);
            const host::ClipFrame frame = clip->frameAt(time_s);
            EXPECT_EQ(numberOf(frame), 0) << time_s << isFirstLook;
            EXPECT_EQ(frame.time_s, 0) << time_s << isFirstLook;
        }
    }
    EXPECT_THAT(numbersAt(file, {1.65, 1.95, 2.05}), ElementsAre(16, 19, 0));
    EXPECT_THAT(complaints(), IsEmpty());
}

TEST_F(ChangedClip, ShowsWhatIsLeftWhereItsBeginningGoesWhileItIsShown) {
    LazyClipDecoder decoder = exactDecoder();
    const auto file = fileWith(bytesOf("ProUpsells/Resources/Clips/StorePageTemplatesVideo.mp4"));
    const auto clip = decoder.open(file);
    ASSERT_TRUE(clip->frameAt(3.0).picture);
    {
        std::fstream changed(file, std::ios::in | std::ios::out | std::ios::binary);
        changed.seekp(std::streamoff(bytesOf(file).find("mdat") + 4));
        changed << std::string(120'000, '\xFF');
    }

    const host::ClipFrame frame = clip->frameAt(0.5);
    EXPECT_TRUE(frame.picture);
    EXPECT_NEAR(frame.time_s, 0.5, 1e-5);
    EXPECT_NEAR(clip->frameAt(5.0).time_s, 5.0, 1.0 / 24);
    EXPECT_TRUE(clip->isPlayable());
    EXPECT_THAT(complaints(), IsEmpty());
}

} // namespace proupsells::tests
