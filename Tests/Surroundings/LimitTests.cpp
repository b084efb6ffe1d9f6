// The program where its surroundings let it down: one line, status 2, and no half of anything.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

#include <unistd.h>

#include "Tests/HostProgram/Program.hpp"
#include "Tests/Support/Sanitizers.hpp"

using namespace proupsells::tests;

using testing::AnyOf;
using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

namespace {

class Limit : public testing::Test {
protected:
    Limit() {
        scenario =
            folder.write("scenario.json",
                         Json{{"offers", sampleOffers()},
                              {"steps", Json::array({{{"snapshot", "early.png"}}, {{"wait", 1}}, {{"snapshot", "late.png"}}})}});
    }
    std::vector<std::string> run() const { return {"run", scenario.string(), "--out", (folder.path() / "out").string()}; }
    std::vector<std::string> written() const {
        std::vector<std::string> names;
        std::error_code error;
        for (const auto& file : std::filesystem::directory_iterator(folder.path() / "out", error))
            names.push_back(file.path().filename().string());
        return names;
    }

    Folder folder;
    std::filesystem::path scenario;
};

void expectOneLine(const Outcome& outcome, const std::string& start) {
    EXPECT_EQ(outcome.status, 2) << outcome.errors;
    EXPECT_THAT(outcome.errors, StartsWith(start));
    EXPECT_THAT(outcome.errorLines(), SizeIs(1));
}

} // namespace

TEST_F(Limit, OfAReaderThatHasGoneIsSaid) {
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe(ends.data()), 0);
    close(ends[0]);

    const Outcome outcome = runProgramIn("", run(), " >&" + std::to_string(ends[1]));
    close(ends[1]);

    expectOneLine(outcome, "standard output: /: ");
    EXPECT_THAT(written(), Not(Contains("late.png"))) << "the run went on";
}

TEST_F(Limit, OfAClosedOutputIsSaid) {
    expectOneLine(runProgramIn("", run(), " >&-"), "standard output: /: ");
    expectOneLine(runProgramIn("", {"texts"}, " >&-"), "standard output: /: ");
}

TEST_F(Limit, OfClosedStreamsLeadsNoLineIntoAFile) {
    const auto page = folder.path() / "page.html";
    const Outcome whole = runProgram({"evidence", scenario.string(), "--out", page.string()});
    ASSERT_EQ(whole.status, 0) << whole.errors;
    const std::string expected = bytesOf(page);

    const Outcome outcome = runProgramIn("", {"evidence", scenario.string(), "--out", page.string()}, " >&- 2>&- <&-");

    EXPECT_EQ(bytesOf(page), expected);
    EXPECT_THAT(outcome.status, AnyOf(0, 2));
}

TEST_F(Limit, OfTheFilesSizeIsOneLineAndNoHalfOfAPicture) {
    // One block of 512 or 1,024 bytes; what the program says goes to files as well.
    const Outcome outcome = runProgramIn("ulimit -f 1; ", run());

    expectOneLine(outcome, scenario.string() + ": /steps/0/snapshot: ");
    EXPECT_THAT(written(), IsEmpty());
}

TEST_F(Limit, OfTheFilesSizeIsOneLineAndNoDraftOfAGallery) {
    const auto matrix = folder.write("matrix.json", Json{{"screens", {"comparison"}},
                                                         {"sizes", {{320, 300}}},
                                                         {"textSizes", {"large"}},
                                                         {"locales", {"en_US"}},
                                                         {"appearances", {"light"}}});
    const auto out = folder.path() / "out";

    const Outcome outcome = runProgramIn("ulimit -f 8; ", {"gallery", "--matrix", matrix.string(), "--out", out.string()});

    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.errorLines(), SizeIs(1)) << outcome.errors;
    EXPECT_THAT(outcome.errors, HasSubstr(": /: the file cannot be written, expected a folder to write a gallery into"));
    for (const auto& entry : std::filesystem::recursive_directory_iterator(out))
        EXPECT_NE(entry.path().extension(), ".part") << entry.path();
}

TEST_F(Limit, OfTheFilesSizeIsOneLineForBadInput) {
    const auto broken = folder.write("broken.json", std::string("{"));

    expectOneLine(runProgramIn("ulimit -f 1; ", {"run", broken.string(), "--out", (folder.path() / "out").string()}),
                  broken.string() + ": /: ");
}

TEST_F(Limit, OfOpenFilesIsOneLineOrNone) {
    if (isSanitized) GTEST_SKIP() << "sanitizers open pipes of their own";
    const Outcome whole = runProgram(run());
    ASSERT_EQ(whole.status, 0) << whole.errors;
    const std::string picture = bytesOf(folder.path() / "out" / "late.png");
    for (const int count : {4, 5, 6, 7, 8, 10, 12, 16}) {
        SCOPED_TRACE(count);
        std::filesystem::remove_all(folder.path() / "out");

        const Outcome outcome = runProgramIn("ulimit -n " + std::to_string(count) + "; ", run());

        if (outcome.status == 127) continue; // the program could not be loaded
        EXPECT_THAT(outcome.status, AnyOf(0, 2)) << outcome.errors;
        EXPECT_THAT(outcome.errorLines(), SizeIs(outcome.status == 0 ? 0 : 1)) << outcome.errors;
        if (outcome.status != 0) continue;
        EXPECT_EQ(bytesOf(folder.path() / "out" / "late.png"), picture);
    }
}

TEST_F(Limit, OfMemoryIsOneLine) {
    if (isSanitized) GTEST_SKIP() << "sanitizers take all addresses";
    int saidCount = 0;
    for (int kilobytes = 40'000; kilobytes <= 400'000; kilobytes += 20'000) {
        SCOPED_TRACE(kilobytes);
        std::filesystem::remove_all(folder.path() / "out");

        const Outcome outcome = runProgramIn("ulimit -v " + std::to_string(kilobytes) + "; ", run());

        if (outcome.status == 127) continue; // the program could not be loaded
        EXPECT_THAT(outcome.status, AnyOf(0, 2)) << outcome.errors;
        EXPECT_THAT(written(), Not(Contains(HasSubstr(".part"))));
        if (outcome.status == 0) continue;
        EXPECT_THAT(outcome.errorLines(), SizeIs(1)) << outcome.errors;
        saidCount += outcome.errors.find("memory") != std::string::npos;
    }
    EXPECT_GT(saidCount, 0);
}

TEST_F(Limit, OfMemoryIsSaidOfAPictureThatIsTooLarge) {
    if (isSanitized) GTEST_SKIP() << "sanitizers take all addresses";
    const auto large = folder.write("large.json", Json{{"offers", sampleOffers()},
                                                       {"device", {{"scale", 1}, {"size", {20'000, 20'000}}, {"fonts", "fixed"}}},
                                                       {"steps", Json::array({{{"snapshot", "large.png"}}})}});

    const Outcome outcome = runProgramIn("ulimit -v 1000000; ", {"run", large.string(), "--out", (folder.path() / "out").string()});

    expectOneLine(outcome, large.string() + ": /steps/0/snapshot: a picture of 20000 by 20000 points at scale 1 does not fit into "
                                            "memory, expected a smaller one\n");
    EXPECT_THAT(written(), IsEmpty());
}

TEST_F(Limit, OfMemoryIsOneLineWhereManyPicturesAreMade) {
    if (isSanitized) GTEST_SKIP() << "sanitizers take all addresses";
    const auto matrix = folder.write("matrix.json", Json{{"screens", {"paywall"}},
                                                         {"sizes", {{6000, 6000}, {6001, 6001}}},
                                                         {"textSizes", {"large"}},
                                                         {"locales", {"en_US"}},
                                                         {"appearances", {"light"}}});
    const Outcome outcome =
        runProgramIn("ulimit -v 250000; ", {"gallery", "--matrix", matrix.string(), "--out", (folder.path() / "out").string()});

    expectOneLine(outcome, "memory: /: ");
}
