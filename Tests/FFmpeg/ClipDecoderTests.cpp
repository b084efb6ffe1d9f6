// Clips as the program meets them: through the plug-in, on either kind of clock.

#include <cmath>

#include "Backends/FFmpeg/ClipPlugin.hpp"
#include "Tests/FFmpeg/Clips.hpp"

using namespace proupsells;

using namespace ffmpegbackend;
using namespace tests;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

// Forty pictures, ten a second, only the first of which stands by itself.
const std::filesystem::path oneKeyPicture = "Tests/FFmpeg/Data/one-key-picture.mp4";
const std::filesystem::path large = "Tests/FFmpeg/Data/large.mp4";

class ClipDecoder : public ClipTest {};

// Adds to the length that stands before the box's name.
void makeLonger(std::string& bytes, const char* box, std::size_t added) {
    const std::size_t place = bytes.find(box) - 2;
    const std::size_t length = 256 * std::uint8_t(bytes[place]) + std::uint8_t(bytes[place + 1]) + added;
    bytes[place] = char(length / 256);
    bytes[place + 1] = char(length % 256);
}

} // namespace

TEST_F(ClipDecoder, LoadsThePlugInWhenTheFirstPictureIsWanted) {
    LazyClipDecoder decoder = exactDecoder();
    EXPECT_FALSE(decoder.isLoaded());

    decoder.open(counting)->frameAt(0);

    EXPECT_TRUE(decoder.isLoaded());
}

TEST_F(ClipDecoder, ShowsTheFrameThatIsDue) {
    LazyClipDecoder decoder = exactDecoder();
    const auto clip = decoder.open(counting);

    std::vector<int> numbers;
    for (const double time_s : {0.0, 0.05, 0.1, 0.199, 0.2, 1.0, 1.95}) numbers.push_back(numberOf(clip->frameAt(time_s)));

    EXPECT_THAT(numbers, ElementsAre(0, 0, 1, 1, 2, 10, 19));
}

TEST_F(ClipDecoder, BeginsWithTheFirstPictureWhereverTheClipsOwnClockDoes) {
    std::string bytes = bytesOf(counting);
    // Its list of cuts has half a second of nothing before the pictures.
    const std::string nothing("\0\0\x01\xF4\xFF\xFF\xFF\xFF\0\1\0\0", 12);
    const std::size_t cuts = bytes.find("elst");
    bytes[cuts + 11] = 2;
    bytes.insert(cuts + 12, nothing);
    for (const char* box : {"moov", "trak", "edts", "elst"}) makeLonger(bytes, box, nothing.size());
    LazyClipDecoder decoder = exactDecoder();
    const auto clip = decoder.open(fileWith(bytes));

    std::vector<int> numbers;
    for (const double time_s : {0.0, 0.15, 1.05, 0.55, 1.65}) numbers.push_back(numberOf(clip->frameAt(time_s)));

    EXPECT_THAT(numbers, ElementsAre(0, 1, 10, 5, 16));
}

TEST_F(ClipDecoder, RepeatsWithoutEnd) {
    LazyClipDecoder decoder = exactDecoder();
    const auto clip = decoder.open(counting);

    EXPECT_EQ(numberOf(clip->frameAt(2.0)), 0);
    EXPECT_EQ(numberOf(clip->frameAt(3.55)), 15);
    EXPECT_EQ(numberOf(clip->frameAt(3601.3)), 13);
}

TEST_F(ClipDecoder, BeginsANewRoundWhereTheTimeIsRoundedDown) {
    LazyClipDecoder decoder = exactDecoder();
    const auto clip = decoder.open(counting);

    EXPECT_EQ(numberOf(clip->frameAt(2.0 - 1e-9)), 0);
    EXPECT_EQ(numberOf(clip->frameAt(1999 * 0.1 + 1999 * 0.1 + 0.2 - 1e-9)), 0);
    EXPECT_EQ(numberOf(clip->frameAt(1.9 - 1e-9)), 19);
}

TEST_F(ClipDecoder, ShowsAPictureAMillionthOfASecondEarlyAndNoSooner) {
    LazyClipDecoder decoder = exactDecoder();
    const auto clip = decoder.open(counting);

    EXPECT_EQ(numberOf(clip->frameAt(1.0 - 0.8e-6)), 10);
    EXPECT_EQ(numberOf(clip->frameAt(1.0 - 1.2e-6)), 9);
    EXPECT_EQ(numberOf(clip->frameAt(2.0 - 0.8e-6)), 0);
    EXPECT_EQ(numberOf(clip->frameAt(2.0 - 1.2e-6)), 19);
}

TEST_F(ClipDecoder, RepeatsBackwardsTooAndBeginsWhereATimeIsNone) {
    LazyClipDecoder decoder = exactDecoder();
    const auto clip = decoder.open(counting);

    EXPECT_EQ(numberOf(clip->frameAt(-0.05)), 19);
    EXPECT_EQ(numberOf(clip->frameAt(-1.95)), 0);
    EXPECT_EQ(numberOf(clip->frameAt(-2.15)), 18);
    for (const double time_s : {std::nan(""), HUGE_VAL, -HUGE_VAL}) EXPECT_EQ(numberOf(clip->frameAt(time_s)), 0) << time_s;
}

TEST_F(ClipDecoder, ShowsTheSameFrameOnEveryWayToATime) {
    LazyClipDecoder decoder = exactDecoder();
    const auto walked = decoder.open(counting);
    for (int i = 0; i < 200; ++i) EXPECT_EQ(numberOf(walked->frameAt(i * 0.05)), (i / 2) % 20) << "at " << i * 0.05;

    for (const int tick : {39, 3, 21, 20, 0, 38, 11})
        EXPECT_EQ(numberOf(walked->frameAt(tick * 0.05 + 0.01)), tick / 2) << "at tick " << tick;
}

TEST_F(ClipDecoder, WalksFromAKeyPictureThatIsFarBeforeTheMoment) {
    LazyClipDecoder decoder = exactDecoder();
    const auto clip = decoder.open(oneKeyPicture);

    EXPECT_NEAR(clip->frameAt(3.5).time_s, 3.5, 1e-3);
    EXPECT_NEAR(clip->frameAt(0.2).time_s, 0.2, 1e-3);
    EXPECT_NEAR(clip->frameAt(2.9).time_s, 2.9, 1e-3);
}

TEST_F(ClipDecoder, DecodesAFileOnceForEverybody) {
    LazyClipDecoder decoder = exactDecoder();

    const auto first = decoder.open(counting);
    const auto second = decoder.open(counting);

    EXPECT_EQ(first, second);
    EXPECT_EQ(first->frameAt(0.5).picture, second->frameAt(0.5).picture);
}

TEST_F(ClipDecoder, ShowsWhiteAsWhite) {
    LazyClipDecoder decoder = exactDecoder();

    const auto frame = decoder.open("ProUpsells/Resources/Clips/StorePageBrandingVideo.mp4")->frameAt(0);

    ASSERT_TRUE(frame.picture);
    // Every row up to its end, whatever the width.
    const graphics::Bitmap& picture = *frame.picture;
    for (const int y : {0, 1, picture.height - 1})
        for (const int x : {0, picture.width - 1}) EXPECT_EQ(picture.pixels[std::size_t(y * picture.width + x)], 0xFFFFFFFFu);
}

TEST_F(ClipDecoder, KeepsLargePicturesSmall) {
    LazyClipDecoder decoder = exactDecoder();

    const auto frame = decoder.open(large)->frameAt(0);

    ASSERT_TRUE(frame.picture);
    // 3840 × 2160 pixels come down to 400,000, in even lengths.
    EXPECT_EQ(frame.picture->width, 842);
    EXPECT_EQ(frame.picture->height, 474);
    EXPECT_EQ(frame.picture->pixels.size(), std::size_t(842 * 474));
    const auto small = decoder.open(counting)->frameAt(0);
    EXPECT_EQ(small.picture->width, 64);
    EXPECT_EQ(small.picture->height, 96);
}

TEST_F(ClipDecoder, NeverBlocksOnTheRealClock) {
    LazyClipDecoder decoder = decoderAt(Pace::realTime);
    const auto clip = decoder.open(counting);

    EXPECT_FALSE(clip->frameAt(1.0).picture); // nothing has been decoded yet

    EXPECT_TRUE(waitUntil([&] { return numberOf(clip->frameAt(1.0)) == 10; }));
}

TEST_F(ClipDecoder, WithoutThePlugInCostsOneLineAndPlaysNothingOnEitherClock) {
    for (const Pace pace : {Pace::exact, Pace::realTime}) {
        SCOPED_TRACE(pace == Pace::exact ? "exact" : "real time");
        LazyClipDecoder decoder{pace, {"no-such-folder", "nor-such-a-one"}};
        const auto first = decoder.open(counting), second = decoder.open(large);
        const std::size_t complaintsBefore = complaints().size();
        ASSERT_TRUE(first && second);
        EXPECT_EQ(decoder.open(counting), first);

        const auto areGivenUp = [&] {
            EXPECT_FALSE(first->frameAt(0).picture);
            EXPECT_FALSE(second->frameAt(0).picture);
            return !first->isPlayable() && !second->isPlayable();
        };
        EXPECT_TRUE(waitUntil(areGivenUp));

        EXPECT_EQ(complaints().size(), complaintsBefore + 1);
        EXPECT_EQ(complaints().back(),
                  "Clips cannot be played: there is no " + std::string(pluginFileName) + " in no-such-folder, nor-such-a-one");
    }
}

TEST_F(ClipDecoder, TakesTheFirstPlugInThatCanBeLoaded) {
    folder.write(std::string(pluginFileName), "this is no library");
    std::vector<std::filesystem::path> folders{"no-such-folder", folder.path()};
    LazyClipDecoder broken{Pace::exact, folders};
    EXPECT_FALSE(broken.open(counting)->frameAt(0).picture);
    EXPECT_THAT(complaints(), ElementsAre(testing::AllOf(testing::StartsWith("Clips cannot be played: "),
                                                         HasSubstr((folder.path() / pluginFileName).string()))));

    for (const auto& usual : LazyClipDecoder::defaultFolders()) folders.push_back(usual);
    LazyClipDecoder whole{Pace::exact, folders};
    EXPECT_EQ(numberOf(whole.open(counting)->frameAt(0.5)), 5);
    EXPECT_EQ(complaints().size(), 1u);
}

TEST_F(ClipDecoder, OutlivesNobody) {
    auto decoder = std::make_unique<LazyClipDecoder>(Pace::exact, LazyClipDecoder::defaultFolders());
    const auto clip = decoder->open(counting);
    const auto last = clip->frameAt(0.3).picture;
    decoder.reset();

    EXPECT_EQ(clip->frameAt(1.0).picture, last);
}
