// Files that are missing, broken or cut short.
#include "Tests/FFmpeg/Clips.hpp"

namespace proupsells::tests {

using ffmpegbackend::LazyClipDecoder;
using ffmpegbackend::Pace;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

// The beginning of the clip, up to somewhere inside the packet that holds the picture of number 14: those of the numbers 0 to 11
// can be decoded, 1.2 seconds.
constexpr std::size_t twelvePictures = 1985; // bytes

std::string beginning(std::size_t length) { return bytesOf(countingIndexFirst).substr(0, length); }

struct Shown {
    int number;
    double time_s;
    bool operator==(const Shown&) const = default;
};
void PrintTo(const Shown& shown, std::ostream* stream) { *stream << shown.number << " at " << shown.time_s; }

Shown shownAt(host::Clip& clip, double time_s) {
    const host::ClipFrame frame = clip.frameAt(time_s);
    return {numberOf(frame), frame.time_s};
}

class DamagedClip : public ClipTest {
protected:
    // What a clip that nobody has looked at yet shows at the time.
    Shown shownAtFirstSight(const std::filesystem::path& file, double time_s) {
        LazyClipDecoder decoder = exactDecoder();
        return shownAt(*decoder.open(file), time_s);
    }

    void expectTheSameOnEveryWay(const std::filesystem::path& file) {
        LazyClipDecoder decoder = exactDecoder();
        const auto walked = decoder.open(file);
        std::vector<Shown> shown;
        for (int tick = 0; tick < 60; ++tick) shown.push_back(shownAt(*walked, tick * 0.075));

        for (const int tick : {59, 3, 27, 26, 0, 58, 13}) {
            const Shown& due = shown[std::size_t(tick)];
            EXPECT_EQ(shownAt(*walked, tick * 0.075), due) << "again, at tick " << tick;
            EXPECT_EQ(shownAtFirstSight(file, tick * 0.075), due) << "at first sight, at tick " << tick;
            EXPECT_EQ(due.number >= 0, walked->isPlayable()) << "at tick " << tick;
        }
    }
};

} // namespace

// FFmpeg also knows lists of files to play, which may lead anywhere.
TEST_F(DamagedClip, LeadToNoOtherFile) {
    LazyClipDecoder decoder = exactDecoder();
    fileWith(bytesOf(counting), "other.mp4");
    const auto list = fileWith("ffconcat version 1.0\nfile other.mp4\n", "list.mp4");

    EXPECT_FALSE(decoder.open(list)->frameAt(0).picture);
    EXPECT_THAT(complaints(), ElementsAre(HasSubstr("\"list.mp4\" cannot be played")));
}

// What FFmpeg says of it, or what we do.
TEST_F(DamagedClip, SaysWhyItCannotBePlayed) {
    LazyClipDecoder decoder = exactDecoder();
    const std::string whole = bytesOf(countingIndexFirst);
    const std::size_t handler = whole.find("vide"), pictures = whole.find("mdat") + 4;
    ASSERT_NE(handler, std::string::npos);
    const std::pair<std::string, std::string> cases[] = {
        {"this is no film", "Invalid data found when processing input"},
        {std::string(whole).replace(handler, 4, "soun"), "there are no pictures in it"},
        {std::string(whole).replace(pictures, std::string::npos, whole.size() - pictures, '\xFF'),
         "no picture in it can be decoded"},
        {whole.substr(0, pictures), "no picture in it can be decoded"}};
    int number = 0;
    for (const auto& [bytes, reason] : cases) {
        const std::string name = std::to_string(++number) + ".mp4";
        const auto clip = decoder.open(fileWith(bytes, name));

        EXPECT_FALSE(clip->frameAt(0).picture);
        EXPECT_FALSE(clip->isPlayable());
        ASSERT_EQ(complaints().size(), std::size_t(number));
        EXPECT_EQ(complaints().back(), "The clip \"" + name + "\" cannot be played: " + reason);
    }
}

TEST_F(DamagedClip, SaysThatItIsCutShortInTheSameWords) {
    LazyClipDecoder decoder = exactDecoder();
    decoder.open(fileWith(beginning(twelvePictures)))->frameAt(0);

    EXPECT_THAT(complaints(), ElementsAre("The clip \"clip.mp4\" is cut short: only its beginning is played"));
    EXPECT_EQ(log.records().front().severity, commons::DefaultLogger::errorSeverity);
    EXPECT_EQ(log.records().front().function, "ClipDecoder");
}

TEST_F(DamagedClip, IsGivenUpWhenItsPicturesGoWhileItIsShown) {
    LazyClipDecoder decoder = exactDecoder();
    const auto file = fileWith(bytesOf("ProUpsells/Resources/Clips/StorePageTemplatesVideo.mp4"));
    const auto clip = decoder.open(file);
    ASSERT_TRUE(clip->frameAt(0).picture);

    std::filesystem::resize_file(file, 1000);

    EXPECT_FALSE(clip->frameAt(5).picture);
    EXPECT_FALSE(clip->isPlayable());
    EXPECT_THAT(complaints(), ElementsAre("The clip \"clip.mp4\" cannot be played any more: its pictures have gone"));
}

TEST_F(DamagedClip, IsSilentWhenItsFileIsMissing) {
    LazyClipDecoder decoder = exactDecoder();
    const auto clip = decoder.open("no-such-clip.mp4");

    EXPECT_FALSE(clip->frameAt(1).picture);

    EXPECT_FALSE(clip->isPlayable());
    EXPECT_THAT(complaints(), IsEmpty());
}

TEST_F(DamagedClip, CostsOneLineWhenItsFileIsNoFilm) {
    LazyClipDecoder decoder = exactDecoder();
    const auto clip = decoder.open(fileWith("this is no film"));

    EXPECT_FALSE(clip->frameAt(0).picture);
    EXPECT_FALSE(clip->isPlayable());
    EXPECT_FALSE(clip->frameAt(1).picture);

    EXPECT_THAT(complaints(), ElementsAre(HasSubstr("\"clip.mp4\" cannot be played")));
}

TEST_F(DamagedClip, CostsOneLineWhenItsFileIsEmpty) {
    LazyClipDecoder decoder = exactDecoder();
    const auto clip = decoder.open(fileWith(""));

    EXPECT_FALSE(clip->frameAt(0).picture);

    EXPECT_THAT(complaints(), ElementsAre(HasSubstr("\"clip.mp4\" cannot be played")));
}

TEST_F(DamagedClip, CostsNoOtherLineWhenItIsOpenedAgain) {
    LazyClipDecoder decoder = exactDecoder();
    const auto broken = fileWith("this is no film", "broken.mp4"), cut = fileWith(beginning(twelvePictures), "cut.mp4");

    for (int visit = 0; visit < 3; ++visit)
        for (const auto& file : {broken, cut}) decoder.open(file)->frameAt(0);

    EXPECT_THAT(complaints(), ElementsAre(HasSubstr("broken.mp4"), HasSubstr("\"cut.mp4\" is cut short")));
}

TEST_F(DamagedClip, MayBeLookedAtFromInsideTheComplaint) {
    LazyClipDecoder decoder = exactDecoder();
    const auto clip = decoder.open(fileWith(beginning(twelvePictures)));
    std::vector<int> numbers;
    const auto former = commons::DefaultLogger::shared().setSink(
        [&](const commons::LogRecord&) { numbers.push_back(numberOf(clip->frameAt(0.5))); });

    clip->frameAt(0.3);

    commons::DefaultLogger::shared().setSink(former);
    EXPECT_THAT(numbers, ElementsAre(5));
}

TEST_F(DamagedClip, PlaysWhatItHasAndRepeatsThat) {
    LazyClipDecoder decoder = exactDecoder();
    const auto clip = decoder.open(fileWith(beginning(twelvePictures)));

    std::vector<int> numbers;
    for (const double time_s : {0.0, 0.55, 1.1, 1.19, 1.2, 1.85, 2.35, 2.4, 12.05})
        numbers.push_back(numberOf(clip->frameAt(time_s)));

    EXPECT_THAT(numbers, ElementsAre(0, 5, 11, 11, 0, 6, 11, 0, 0));
    EXPECT_TRUE(clip->isPlayable());
}

TEST_F(DamagedClip, TakesBytesThatWereNeverWrittenForMissingOnes) {
    std::string bytes = bytesOf(countingIndexFirst);
    std::fill(bytes.begin() + twelvePictures, bytes.end(), '\0');
    LazyClipDecoder decoder = exactDecoder();
    const auto clip = decoder.open(fileWith(bytes));

    EXPECT_EQ(numberOf(clip->frameAt(1.15)), 11);
    EXPECT_EQ(numberOf(clip->frameAt(1.85)), 6);
    EXPECT_THAT(complaints(), ElementsAre(HasSubstr("cut short")));
}

TEST_F(DamagedClip, KeepsItsLengthWhenOnlyPicturesBeforeItsLastOneAreMissing) {
    // The last packet is the picture of number 18, decoded after number 19.
    LazyClipDecoder decoder = exactDecoder();
    const auto clip = decoder.open(fileWith(beginning(2140)));

    EXPECT_EQ(numberOf(clip->frameAt(1.85)), 17);
    EXPECT_EQ(numberOf(clip->frameAt(1.95)), 19);
    EXPECT_EQ(numberOf(clip->frameAt(2.05)), 0);
    EXPECT_THAT(complaints(), IsEmpty());
}

// Nothing of it, or what there is over and over, whatever was looked at before.
TEST_F(DamagedClip, ShowsTheSamePictureOnEveryWayToATimeWhereverItIsCut) {
    const std::size_t whole = bytesOf(countingIndexFirst).size();
    for (std::size_t length = whole / 2; length <= whole; length += 37) {
        SCOPED_TRACE(length);
        expectTheSameOnEveryWay(fileWith(beginning(length)));
    }
}

TEST_F(DamagedClip, ShowsTheSamePictureOnEveryWayToATimeWhereverAPieceOfItIsLost) {
    const std::string whole = bytesOf(countingIndexFirst);
    for (std::size_t place = whole.size() / 2; place < whole.size(); place += 23) {
        SCOPED_TRACE(place);
        expectTheSameOnEveryWay(fileWith(std::string(whole).replace(place, 40, 40, '\xFF')));
    }
}

TEST_F(DamagedClip, IsGivenUpWithOneLineWhereverItIsCutBeforeItsIndexEnds) {
    const std::string whole = bytesOf(counting);
    for (std::size_t length = 0; length + 97 < whole.size(); length += 97) {
        SCOPED_TRACE(length);
        const std::size_t complaintsBefore = complaints().size();
        LazyClipDecoder decoder = exactDecoder();
        const auto clip = decoder.open(fileWith(whole.substr(0, length)));

        for (const double time_s : {0.0, 0.7, 1.9, 4.2}) EXPECT_FALSE(clip->frameAt(time_s).picture) << "at " << time_s;

        EXPECT_FALSE(clip->isPlayable());
        ASSERT_EQ(complaints().size(), complaintsBefore + 1);
        EXPECT_THAT(complaints().back(), HasSubstr("\"clip.mp4\" cannot be played"));
    }
    LazyClipDecoder decoder = exactDecoder();
    EXPECT_EQ(numberOf(decoder.open(fileWith(whole))->frameAt(0.7)), 7);
}

// Decoders make up what they cannot read, from the pictures around it. (Damage that reads like another picture cannot be noticed.)
TEST_F(DamagedClip, LeavesOutPicturesInItsMiddleRatherThanMakingThemUp) {
    const std::string whole = bytesOf(countingIndexFirst);
    // In the packets of the pictures from number 8, a key picture, up to number 16, the next one.
    for (const std::size_t place : {1912, 1935, 1958, 1981, 2004}) {
        SCOPED_TRACE(place);
        LazyClipDecoder decoder = exactDecoder();
        const auto clip = decoder.open(fileWith(std::string(whole).replace(place, 20, 20, '\xFF')));

        int lost = 0;
        for (int due = 0; due < 20; ++due) {
            const Shown shown = shownAt(*clip, due * 0.1 + 0.05);
            EXPECT_NEAR(shown.time_s, shown.number * 0.1, 1e-6) << "when " << due << " is due";
            EXPECT_LE(shown.number, due);
            lost += shown.number != due;
            if (due < 8 || due >= 16) {
                EXPECT_EQ(shown.number, due);
            }
        }
        EXPECT_GT(lost, 0);
        EXPECT_EQ(shownAt(*clip, 2.35).number, 3);
        EXPECT_TRUE(clip->isPlayable());
    }
    EXPECT_THAT(complaints(), IsEmpty());
}

TEST_F(DamagedClip, ShowsOnTheRealClockWhatItShowsOnAnExactOne) {
    const auto file = fileWith(beginning(twelvePictures));
    for (const double firstLook_s : {0.3, 1.15, 1.7, 3.9, 1000.05}) {
        SCOPED_TRACE(firstLook_s);
        LazyClipDecoder decoder = decoderAt(Pace::realTime);
        const auto clip = decoder.open(file);

        for (const double time_s : {firstLook_s, firstLook_s + 0.5, 0.0}) {
            const Shown due = shownAtFirstSight(file, time_s);
            EXPECT_TRUE(waitUntil([&] { return shownAt(*clip, time_s) == due; })) << "at " << time_s;
        }
    }
}

} // namespace proupsells::tests
