// A clip that takes its time to open: a pipe that nobody writes to yet, as a file on a slow drive or a network.
#include <sys/stat.h>

#include "Tests/FFmpeg/Clips.hpp"

using namespace proupsells;

using namespace tests;

namespace {

class SlowClip : public ClipTest {
protected:
    // Lets go of whoever waits for the bytes.
    void write(const std::string& bytes) const { std::ofstream(file, std::ios::binary) << bytes; }

    std::filesystem::path file = folder.path() / "slow.mp4";
    ffmpegbackend::LazyClipDecoder decoder = decoderAt(ffmpegbackend::Pace::realTime);
};

TEST_F(SlowClip, IsNotWaitedForOnARealClock) {
    const auto known = decoder.open(counting);
    ASSERT_TRUE(waitUntil([&] { return numberOf(known->frameAt(0)) == 0; }));
    ASSERT_EQ(mkfifo(file.c_str(), 0600), 0);
    const auto slow = decoder.open(file);

    // The thread that decodes waits in there. Whoever asks gets what there is, however often.
    for (int question = 0; question < 1000; ++question) {
        EXPECT_EQ(numberOf(slow->frameAt(question / 60.0)), -1);
        EXPECT_TRUE(slow->isPlayable());
        EXPECT_EQ(numberOf(known->frameAt(0)), 0);
    }

    write("this is no film");
    EXPECT_TRUE(waitUntil([&] {
        slow->frameAt(0);
        return !slow->isPlayable();
    }));
    EXPECT_TRUE(waitUntil([&] { return numberOf(known->frameAt(1)) == 10; })) << "the others do not go on";
    EXPECT_THAT(complaints(), testing::ElementsAre(testing::HasSubstr("slow.mp4")));
}

} // namespace
