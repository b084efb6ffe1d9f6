// Clips as the program meets them: through the plug-in, on either kind of clock.

#include <chrono>
#include <fstream>
#include <thread>

#include <gmock/gmock.h>

#include "Backends/FFmpeg/LazyClipDecoder.hpp"
#include "Platform/Commons/DefaultLogger.hpp"

using namespace proupsells;

using namespace ffmpegbackend;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

// Twenty pictures, ten a second; the picture of number n has the luminance 16 + 10 n.
const std::filesystem::path counting = "Tests/FFmpeg/Data/counting.mp4";
// Forty pictures, ten a second, only the first of which stands by itself.
const std::filesystem::path oneKeyPicture = "Tests/FFmpeg/Data/one-key-picture.mp4";
const std::filesystem::path large = "Tests/FFmpeg/Data/large.mp4";

class ClipDecoder : public testing::Test {
protected:
    ClipDecoder() {
        m_former = commons::DefaultLogger::shared().setSink(
            [this](const commons::LogRecord& record) { complaints.push_back(record.message); });
    }
    ~ClipDecoder() override { commons::DefaultLogger::shared().setSink(m_former); }

    static LazyClipDecoder exactDecoder() { return {Pace::exact, LazyClipDecoder::defaultFolders()}; }

    std::filesystem::path fileWith(const std::string& bytes) {
        const auto file = std::filesystem::path(testing::TempDir()) / "proupsells-clip.mp4";
        std::ofstream(file, std::ios::binary) << bytes;
        return file;
    }

    std::vector<std::string> complaints;

private:
    commons::DefaultLogger::Sink m_former;
};

std::string bytesOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

// The number of the counting clip's picture, read back from its brightness.
int numberOf(const host::ClipFrame& frame) {
    if (!frame.picture) return -1;
    const double brightness = frame.picture->pixels[frame.picture->pixels.size() / 2] & 0xFF;
    return static_cast<int>(brightness * 219 / 255 / 10 + 0.5);
}

} // namespace

TEST_F(ClipDecoder, LoadsThePlugInWhenTheFirstClipIsWanted) {
    LazyClipDecoder decoder = exactDecoder();
    EXPECT_FALSE(decoder.isLoaded());

    const auto clip = decoder.open(counting);

    EXPECT_TRUE(decoder.isLoaded());
    EXPECT_TRUE(clip);
}

TEST_F(ClipDecoder, ShowsTheFrameThatIsDue) {
    LazyClipDecoder decoder = exactDecoder();
    const auto clip = decoder.open(counting);

    std::vector<int> numbers;
    for (const double time_s : {0.0, 0.05, 0.1, 0.199, 0.2, 1.0, 1.95}) numbers.push_back(numberOf(clip->frameAt(time_s)));

    EXPECT_THAT(numbers, ElementsAre(0, 0, 1, 1, 2, 10, 19));
}

TEST_F(ClipDecoder, RepeatsWithoutEnd) {
    LazyClipDecoder decoder = exactDecoder();
    const auto clip = decoder.open(counting);

    EXPECT_EQ(numberOf(clip->frameAt(2.0)), 0);
    EXPECT_EQ(numberOf(clip->frameAt(3.55)), 15);
    EXPECT_EQ(numberOf(clip->frameAt(3601.3)), 13);
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
    EXPECT_LE(frame.picture->width * frame.picture->height, 400'000);
    EXPECT_NEAR(double(frame.picture->width) / frame.picture->height, 16.0 / 9, 0.02);
}

TEST_F(ClipDecoder, SaysNothingOfAMissingFile) {
    LazyClipDecoder decoder = exactDecoder();
    const auto clip = decoder.open("no-such-clip.mp4");

    EXPECT_FALSE(clip->frameAt(1).picture);
    EXPECT_FALSE(clip->isPlayable());
    EXPECT_THAT(complaints, IsEmpty());
}

TEST_F(ClipDecoder, ComplainsOnceOfABrokenFile) {
    LazyClipDecoder decoder = exactDecoder();
    const auto clip = decoder.open(fileWith("this is no film"));

    EXPECT_FALSE(clip->frameAt(0).picture);
    EXPECT_FALSE(clip->frameAt(1).picture);

    EXPECT_THAT(complaints, ElementsAre(HasSubstr("proupsells-clip.mp4")));
}

TEST_F(ClipDecoder, ComplainsOnceOfAnEmptyFile) {
    LazyClipDecoder decoder = exactDecoder();
    const auto clip = decoder.open(fileWith(""));

    EXPECT_FALSE(clip->frameAt(0).picture);
    EXPECT_EQ(complaints.size(), 1u);
}

TEST_F(ClipDecoder, SurvivesTruncationAtEveryLength) {
    const std::string whole = bytesOf(counting);
    for (std::size_t length = 0; length < whole.size(); length += whole.size() / 23) {
        SCOPED_TRACE(length);
        LazyClipDecoder decoder = exactDecoder();
        const auto clip = decoder.open(fileWith(whole.substr(0, length)));
        for (const double time_s : {0.0, 0.7, 1.9, 4.2}) clip->frameAt(time_s);
    }
}

TEST_F(ClipDecoder, NeverBlocksOnTheRealClock) {
    LazyClipDecoder decoder{Pace::realTime, LazyClipDecoder::defaultFolders()};
    const auto clip = decoder.open(counting);

    const auto first = clip->frameAt(1.0); // nothing has been decoded yet
    EXPECT_FALSE(first.picture);

    const auto limit = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (numberOf(clip->frameAt(1.0)) != 10 && std::chrono::steady_clock::now() < limit) std::this_thread::yield();
    EXPECT_EQ(numberOf(clip->frameAt(1.0)), 10);
}

TEST_F(ClipDecoder, DoesNotWaitForThePlugInOnTheRealClock) {
    LazyClipDecoder decoder{Pace::realTime, {"no-such-folder"}};
    const auto clip = decoder.open(counting);
    ASSERT_TRUE(clip); // that there is no plug-in has not turned out yet, or is said later
    EXPECT_EQ(decoder.open(counting), clip);

    const auto limit = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (clip->isPlayable() && std::chrono::steady_clock::now() < limit) EXPECT_FALSE(clip->frameAt(0).picture);

    EXPECT_FALSE(clip->isPlayable());
    EXPECT_THAT(complaints, ElementsAre(HasSubstr("cannot be played")));
}

TEST_F(ClipDecoder, WithoutThePlugInCostsOneLineAndShowsNothing) {
    LazyClipDecoder decoder{Pace::exact, {"no-such-folder"}};

    EXPECT_FALSE(decoder.open(counting));
    EXPECT_FALSE(decoder.open(large));

    EXPECT_THAT(complaints, ElementsAre(HasSubstr("cannot be played")));
}

TEST_F(ClipDecoder, OutlivesNobody) {
    auto decoder = std::make_unique<LazyClipDecoder>(Pace::exact, LazyClipDecoder::defaultFolders());
    const auto clip = decoder->open(counting);
    const auto last = clip->frameAt(0.3).picture;
    decoder.reset();

    EXPECT_EQ(clip->frameAt(1.0).picture, last);
}
