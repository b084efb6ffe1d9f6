#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Backends/Headless/FakeClipDecoder.hpp"
#include "Tests/Support/LogRecorder.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

namespace proupsells::headless {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::Eq;
using ::testing::IsEmpty;

class FakeClipDecoderTest : public ::testing::Test {
protected:
    // A second of four pictures, three pixels wide and five high.
    FakeClipDecoder decoder{FakeClipDecoder::Film{1, 0.25, 3, 5}};
    tests::TemporaryFolder folder;
    std::filesystem::path file = folder.write("film.webm", "");

    // -1 where there is no picture.
    static int numberAt(host::Clip& clip, double time_s) {
        const auto picture = clip.frameAt(time_s).picture;
        return picture ? FakeClipDecoder::pictureNumber(*picture) : -1;
    }
};

TEST_F(FakeClipDecoderTest, ShowsThePictureThatIsDueAndRepeatsWithoutEnd) {
    const auto clip = decoder.open(file);

    EXPECT_EQ(numberAt(*clip, -3), 0);
    EXPECT_EQ(numberAt(*clip, 0), 0);
    EXPECT_EQ(numberAt(*clip, 0.24), 0);
    EXPECT_EQ(numberAt(*clip, 0.25), 1);
    EXPECT_EQ(numberAt(*clip, 0.99), 3);
    EXPECT_EQ(numberAt(*clip, 1), 0);
    EXPECT_EQ(numberAt(*clip, 7.5), 2);
    EXPECT_EQ(clip->frameAt(7.6).time_s, 0.5);
    EXPECT_TRUE(clip->isPlayable());
}

TEST_F(FakeClipDecoderTest, TakesAMomentThatIsDueForDueWhateverTheRounding) {
    const auto clip = decoder.open(file);

    EXPECT_EQ(numberAt(*clip, 0.25 - 1e-10), 1);
    EXPECT_EQ(numberAt(*clip, 0.25 - 1.2e-9), 0);
}

TEST_F(FakeClipDecoderTest, MakesOpaquePicturesOfTheFilmsSize) {
    const auto picture = decoder.open(file)->frameAt(0.5).picture;

    ASSERT_NE(picture, nullptr);
    EXPECT_EQ(picture->width, 3);
    EXPECT_EQ(picture->height, 5);
    EXPECT_EQ(picture->pixels.size(), 15u);
    EXPECT_THAT(picture->pixels, Each(Eq(0xFF000002u)));
}

TEST_F(FakeClipDecoderTest, HasAFilmOfItsOwn) {
    FakeClipDecoder standard;
    const auto clip = standard.open(file);

    EXPECT_EQ(numberAt(*clip, 3.9), 31);
    EXPECT_EQ(numberAt(*clip, 4), 0);
    EXPECT_EQ(clip->frameAt(0).picture->pixels.size(), 8u);
}

TEST_F(FakeClipDecoderTest, MakesAPictureOnceForAsLongAsItIsShown) {
    const auto clip = decoder.open(file);

    const auto first = clip->frameAt(0).picture;
    EXPECT_EQ(clip->frameAt(0.1).picture, first);
    EXPECT_EQ(clip->frameAt(1).picture, first);
    EXPECT_NE(clip->frameAt(0.3).picture, first);

    EXPECT_EQ(decoder.questionCount(), 4);
    EXPECT_EQ(decoder.decodedCount(), 2);
}

TEST_F(FakeClipDecoderTest, AnswersWithTheLastPictureWhileItIsHeldBack) {
    const auto clip = decoder.open(file);
    decoder.setHeldBack(true);
    EXPECT_EQ(numberAt(*clip, 0), -1);

    decoder.setHeldBack(false);
    EXPECT_EQ(numberAt(*clip, 0.25), 1);
    decoder.setHeldBack(true);
    EXPECT_EQ(numberAt(*clip, 0.5), 1);
    EXPECT_EQ(clip->frameAt(0.75).time_s, 0.25);
    EXPECT_EQ(decoder.questionCount(), 4);
}

TEST_F(FakeClipDecoderTest, OpensAFileOnceForEverybodyWhoHoldsIt) {
    auto clip = decoder.open(file);
    EXPECT_EQ(decoder.open(file), clip);
    const auto other = decoder.open(folder.write("other.webm", ""));
    EXPECT_NE(other, clip);
    EXPECT_EQ(decoder.openCount(), 2);

    clip.reset();
    EXPECT_EQ(decoder.openCount(), 1);
    clip = decoder.open(file);

    EXPECT_THAT(decoder.takeOpenedFiles(), ElementsAre("film.webm", "other.webm", "film.webm"));
    EXPECT_THAT(decoder.openedFiles(), IsEmpty());
}

TEST_F(FakeClipDecoderTest, ShowsNothingOfAFileThatIsNotThereAndSaysNothing) {
    const tests::LogRecorder log;
    const auto clip = decoder.open(folder.path() / "missing.webm");

    EXPECT_FALSE(clip->isPlayable());
    EXPECT_EQ(numberAt(*clip, 0), -1);
    EXPECT_EQ(decoder.questionCount(), 1);
    EXPECT_EQ(decoder.decodedCount(), 0);
    EXPECT_THAT(log.messages(), IsEmpty());
}

TEST_F(FakeClipDecoderTest, LogsABrokenFileOnceHoweverOftenItIsAskedForAndOpened) {
    const tests::LogRecorder log;
    decoder.breakFile("film.webm");
    for (int time = 0; time < 2; ++time) {
        const auto clip = decoder.open(file);
        EXPECT_FALSE(clip->isPlayable());
        EXPECT_EQ(log.records().size(), std::size_t(time));
        EXPECT_EQ(numberAt(*clip, 0), -1);
        EXPECT_EQ(numberAt(*clip, 1), -1);
        EXPECT_EQ(log.records().size(), 1u);
    }
    EXPECT_TRUE(decoder.open(folder.write("whole.webm", ""))->isPlayable());

    EXPECT_THAT(log.messages(), ElementsAre("film.webm cannot be played"));
    EXPECT_EQ(log.records().front().severity, commons::DefaultLogger::errorSeverity);
    EXPECT_EQ(log.records().front().function, "ClipDecoder");
}

} // namespace
} // namespace proupsells::headless
