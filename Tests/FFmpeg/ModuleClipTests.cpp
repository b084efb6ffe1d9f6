// The clips that the module brings. Each plays in a loop, so a difference between its last picture and its first is seen as a jump.

#include <algorithm>
#include <cstdlib>

#include "Tests/FFmpeg/Clips.hpp"

using namespace proupsells;

using namespace tests;
using graphics::Bitmap;
using testing::AllOf;
using testing::Each;
using testing::Le;
using testing::SizeIs;

namespace {

const std::filesystem::path clips = "ProUpsells/Resources/Clips";
constexpr int picturesPerSecond = 24, pixelsPerPoint = 2;
// What compression may do to a plain area, in levels of 255.
constexpr int noise = 10;

using Pictures = std::vector<std::shared_ptr<const Bitmap>>;

int channel(std::uint32_t pixel, int index) { return static_cast<int>(pixel >> (8 * index) & 0xFF); }

int difference(std::uint32_t a, std::uint32_t b) {
    int largest = 0;
    for (int index = 0; index < 3; ++index) largest = std::max(largest, std::abs(channel(a, index) - channel(b, index)));
    return largest;
}

// Every seventh byte stands for all of them: they are spread over all columns, rows and channels.
double meanDifference(const Bitmap& a, const Bitmap& b) {
    const auto* first = reinterpret_cast<const std::uint8_t*>(a.pixels.data());
    const auto* second = reinterpret_cast<const std::uint8_t*>(b.pixels.data());
    const std::size_t size = a.pixels.size() * sizeof a.pixels[0];
    std::int64_t sum = 0;
    for (std::size_t place = 0; place < size; place += 7) sum += std::abs(first[place] - second[place]);
    return static_cast<double>(sum) * 7 / size;
}

class ModuleClip : public ClipTest {
protected:
    // One round of the clip.
    Pictures picturesOf(const std::filesystem::path& file) {
        const auto clip = m_decoder.open(file);
        Pictures pictures;
        for (double before_s = -1;;) {
            const host::ClipFrame frame = clip->frameAt((pictures.size() + 0.5) / picturesPerSecond);
            if (!frame.picture || frame.time_s <= before_s) return pictures;
            pictures.push_back(frame.picture);
            before_s = frame.time_s;
        }
    }

    // How far each picture's outer columns are from a colour at most, in levels of 255.
    std::vector<int> distancesOfTheSidesFrom(std::uint32_t colour, const std::string& name) {
        std::vector<int> distances;
        for (const auto& picture : picturesOf(clips / name)) {
            int largest = 0;
            for (int y = 0; y < picture->height; ++y)
                for (const int x : {0, picture->width - 1})
                    largest = std::max(largest, difference(picture->pixels[y * picture->width + x], colour));
            distances.push_back(largest);
        }
        return distances;
    }

    // How much anything moves within some points of the clip's left and right sides at most, in levels of 255.
    int motionAtTheSides(double points, const std::string& name) {
        const Pictures pictures = picturesOf(clips / name);
        const int border = static_cast<int>(points * pixelsPerPoint);
        int largest = 0;
        for (const auto& picture : pictures)
            for (int y = 0; y < picture->height; ++y)
                for (int x = 0; x < border; ++x)
                    for (const int column : {x, picture->width - 1 - x}) {
                        const int place = y * picture->width + column;
                        largest = std::max(largest, difference(picture->pixels[place], pictures.front()->pixels[place]));
                    }
        return largest;
    }

private:
    ffmpegbackend::LazyClipDecoder m_decoder = exactDecoder();
};

} // namespace

TEST_F(ModuleClip, LeadsFromItsLastPictureIntoItsFirstAsFromAnyPictureIntoTheNext) {
    for (const auto& entry : std::filesystem::directory_iterator(clips)) {
        const Pictures pictures = picturesOf(entry.path());
        ASSERT_GE(pictures.size(), 3 * picturesPerSecond) << entry.path();

        double largestInside = 0;
        for (std::size_t number = 1; number < pictures.size(); ++number)
            largestInside = std::max(largestInside, meanDifference(*pictures[number - 1], *pictures[number]));

        EXPECT_LE(meanDifference(*pictures.back(), *pictures.front()), largestInside) << entry.path();
    }
}

TEST_F(ModuleClip, OfTemplatesFadesIntoThePageAtBothSides) {
    EXPECT_THAT(distancesOfTheSidesFrom(0xFFFFFF, "StorePageTemplatesVideo.mp4"), AllOf(SizeIs(144), Each(Le(2))));
    EXPECT_THAT(distancesOfTheSidesFrom(0x0F1315, "StorePageTemplatesVideo_dark.mp4"), AllOf(SizeIs(144), Each(Le(2))));
}

TEST_F(ModuleClip, KeepsWhatTurnsAndSwingsClearOfItsSides) {
    EXPECT_LE(motionAtTheSides(6, "VELA_TEASPIN.mp4"), noise);
    EXPECT_LE(motionAtTheSides(4, "VELA_SOCKS-.mp4"), noise);
}
