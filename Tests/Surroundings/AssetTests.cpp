// Files that are shipped, one after another missing, empty or damaged: the program plays on as before, or stops with a line that
// names the picture.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <functional>

#include "Tests/HostProgram/Program.hpp"
#include "Tests/Support/Sanitizers.hpp"

using namespace proupsells::tests;

using testing::IsEmpty;
using testing::Not;

namespace fs = std::filesystem;

namespace {

// All three screens, light and dark, the store page with every shelf in sight.
Json tourOfAllScreens() {
    return {{"offers", sampleOffers()}, {"device", {{"size", {375, 800}}, {"scale", 1}}}, {"steps", Json::parse(R"([
                {"snapshot": "paywall.png"}, {"wait": 16}, {"tap": {"identifier": "comparePlans"}},
                {"snapshot": "comparison.png"}, {"tap": {"identifier": "comparison.close"}},
                {"set": {"size": [375, 3300], "shouldMentioniCloudSync": true}}, {"send": "whatIsPro"}, {"wait": 0.5},
                {"snapshot": "store.png"}, {"set": {"appearance": "dark"}}, {"wait": 0.2}, {"snapshot": "dark.png"},
                {"tap": {"identifier": "store.close"}}, {"set": {"size": [375, 800]}}, {"wait": 16}, {"snapshot": "turned.png"},
                {"tap": {"identifier": "close"}}])")}};
}

class Asset : public testing::Test {
protected:
    Asset() {
        const fs::path programs = builtProgram.parent_path();
        fs::create_directories(program.parent_path());
        // The program looks around where it really lies.
        fs::copy(builtProgram, program);
        fs::create_symlink(programs / "proupsells-clips.so", program.parent_path() / "proupsells-clips.so");
        fs::create_directories(share.parent_path());
        fs::copy(programs.parent_path() / "share" / "proupsells", share, fs::copy_options::recursive);
        const fs::path clips = share / "ProUpsells" / "Clips";
        if (!fs::exists(clips)) fs::copy("ProUpsells/Resources/Clips", clips);
        scenario = folder.write("scenario.json", tourOfAllScreens());
        for (const auto& entry : fs::recursive_directory_iterator(share))
            if (entry.is_regular_file()) files.push_back(entry.path());
        std::sort(files.begin(), files.end());
    }

    Outcome play() const { return runProgram({"run", scenario.string(), "--out", (folder.path() / "out").string()}, program); }
    // What the host is told and what is written, without the log.
    static std::vector<Json> told(const Outcome& outcome) {
        std::vector<Json> events = outcome.events();
        std::erase_if(events, [](const Json& event) { return event["event"] == "log"; });
        return events;
    }
    // Spoils each file in turn, and puts it back. A run takes half a second, and ten times that under a sanitizer: so every
    // third file or fewer from the `first` on, and all of them where PROUPSELLS_EVERY_ASSET is set.
    void spoilEach(std::size_t first, const std::function<void(const fs::path& file, const std::string& bytes)>& spoil) {
        const bool isEveryOneWanted = std::getenv("PROUPSELLS_EVERY_ASSET");
        const std::size_t stride = isEveryOneWanted ? 1 : isSanitized ? 9 : 3;
        const Outcome whole = play();
        ASSERT_EQ(whole.status, 0) << whole.errors;
        ASSERT_GT(files.size(), 40u);
        for (std::size_t number = isEveryOneWanted ? 0 : first; number < files.size(); number += stride) {
            const fs::path& file = files[number];
            SCOPED_TRACE(file);
            const std::string bytes = bytesOf(file);
            spoil(file, bytes);

            const Outcome outcome = play();

            if (outcome.status == 0) {
                EXPECT_THAT(outcome.errors, IsEmpty());
                EXPECT_EQ(told(outcome), told(whole));
            } else {
                expectStatedStop(outcome, file);
            }
            std::ofstream(file, std::ios::binary) << bytes;
        }
    }
    // A picture that the module names must be there: without it the program stops, in a line that names it.
    static void expectStatedStop(const Outcome& outcome, const fs::path& file) {
        constexpr int aborted = 128 + 6;
        EXPECT_EQ(outcome.status, aborted);
        EXPECT_EQ(file.extension(), ".picture");
        const std::string line =
            "There is no image \"" + file.stem().string() + "\" in " + file.parent_path().parent_path().string();
        // The shell adds that it was aborted.
        ASSERT_THAT(outcome.errorLines(), Not(IsEmpty()));
        EXPECT_EQ(outcome.errorLines()[0], line);
        EXPECT_LE(outcome.errorLines().size(), 2u) << outcome.errors;
    }

    Folder folder;
    fs::path program = folder.path() / "bin" / "proupsells", share = folder.path() / "share" / "proupsells", scenario;
    std::vector<fs::path> files;
};

} // namespace

TEST_F(Asset, ThatIsMissingHoldsNothingUp) {
    spoilEach(0, [](const fs::path& file, const std::string&) { fs::remove(file); });
}

TEST_F(Asset, ThatIsEmptyHoldsNothingUp) {
    spoilEach(1, [](const fs::path& file, const std::string&) { fs::resize_file(file, 0); });
}

TEST_F(Asset, ThatIsCutInHalfHoldsNothingUp) {
    spoilEach(2, [](const fs::path& file, const std::string& bytes) { fs::resize_file(file, bytes.size() / 2); });
}

TEST_F(Asset, ThatIsDamagedHoldsNothingUp) {
    spoilEach(0, [](const fs::path& file, std::string bytes) {
        constexpr std::size_t spared = 100, step = 7;
        for (std::size_t place = spared; place < bytes.size(); place += step) bytes[place] = char(~bytes[place]);
        std::ofstream(file, std::ios::binary) << bytes;
    });
}
