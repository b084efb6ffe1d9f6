// Clips that are part of the program.

#include "Tests/FFmpeg/Clips.hpp"
#include "Tests/Support/EmbeddedCopy.hpp"

using namespace proupsells;

using namespace ffmpegbackend;
using namespace tests;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

class EmbeddedClip : public ClipTest {};

TEST_F(EmbeddedClip, ShowsWhatTheFileShows) {
    for (const auto& file : {counting, countingIndexFirst}) {
        const EmbeddedCopy copy("Clips/größe und zahl.mp4", bytesOf(file));
        LazyClipDecoder decoder = exactDecoder();
        const auto embedded = decoder.open(copy.path()), fromFile = decoder.open(file);

        // Forwards, back, and over the end.
        for (const double time_s : {0.0, 0.1, 1.95, 0.3, 1.5, 2.0, 3601.3}) {
            const host::ClipFrame frame = embedded->frameAt(time_s), expected = fromFile->frameAt(time_s);
            ASSERT_TRUE(frame.picture && expected.picture) << file << " at " << time_s;
            EXPECT_EQ(frame.time_s, expected.time_s) << file << " at " << time_s;
            EXPECT_EQ(frame.picture->pixels, expected.picture->pixels) << file << " at " << time_s;
        }
    }
    EXPECT_THAT(complaints(), IsEmpty());
}

TEST_F(EmbeddedClip, IsPlayedInRealTimeToo) {
    const EmbeddedCopy copy("Clips/counting.mp4", bytesOf(counting));
    LazyClipDecoder decoder = decoderAt(Pace::realTime);
    const auto clip = decoder.open(copy.path());

    EXPECT_TRUE(waitUntil([&] { return numberOf(clip->frameAt(1.5)) == 15; }));
}

TEST_F(EmbeddedClip, SaysWhenItIsNoClip) {
    const EmbeddedCopy copy("Clips/text.mp4", "no clip");
    LazyClipDecoder decoder = exactDecoder();
    const auto clip = decoder.open(copy.path());

    EXPECT_FALSE(clip->frameAt(0).picture);
    EXPECT_FALSE(clip->isPlayable());
    EXPECT_THAT(complaints(), ElementsAre(HasSubstr("The clip \"text.mp4\" cannot be played")));
}

TEST_F(EmbeddedClip, IsNotPlayableWhereThereIsNone) {
    LazyClipDecoder decoder = exactDecoder();
    const auto clip = decoder.open(system::EmbeddedFiles::root() / "Clips/none.mp4");

    EXPECT_FALSE(clip->frameAt(0).picture);
    EXPECT_FALSE(clip->isPlayable());
    EXPECT_THAT(complaints(), IsEmpty());
}

TEST_F(EmbeddedClip, NeedsAPlugInBesideTheProgram) {
    const EmbeddedCopy copy("Clips/counting.mp4", bytesOf(counting));

    for (const auto& folder : LazyClipDecoder::defaultFolders()) EXPECT_TRUE(folder.is_absolute()) << folder;
}

} // namespace
