// What the program writes: nothing is lost without a word, nothing operates a terminal, and no link leads it elsewhere.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Tests/HostProgram/Program.hpp"

using namespace proupsells::tests;

using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

namespace {

const std::filesystem::path fullDisk = "/dev/full";

class Output : public testing::Test {
protected:
    void SetUp() override {
        if (!std::filesystem::exists(fullDisk)) GTEST_SKIP() << "there is no " << fullDisk;
        offers = folder.write("offers.json", sampleOffers());
        scenario = folder.write(
            "scenario.json", Json{{"offers", sampleOffers()}, {"steps", Json::array({{{"wait", 1}}, {{"snapshot", "late.png"}}})}});
    }

    Folder folder;
    std::filesystem::path offers, scenario;
};

// A SKU that turns a terminal's letters red, by either of the two ways to write that.
const std::string redSku = "pro\x1b[31m\xc2\x9b"
                           "31m";

Json offersOf(const std::string& sku) {
    Json offers = sampleOffers();
    for (Json& option : offers["options"]) option["SKU"] = sku + option["SKU"].get<std::string>();
    return offers;
}

const auto operatesNoTerminal = AllOf(Not(HasSubstr("\x1b")), Not(HasSubstr("\xc2\x9b")));

} // namespace

TEST_F(Output, ThatIsLostEndsARunWithALine) {
    const Outcome outcome = runProgram({"run", scenario.string(), "--out", folder.path().string()}, builtProgram, fullDisk);

    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.errors, "standard output: /: lines were lost, expected a place with room for all of them\n");
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "late.png")) << "the run went on";
}

TEST_F(Output, ThatIsLostIsSaidByEveryCommand) {
    for (const auto& arguments : std::vector<std::vector<std::string>>{{"texts"}, {"read", "paywall"}, {"lint", offers.string()}}) {
        const Outcome outcome = runProgram(arguments, builtProgram, fullDisk);

        EXPECT_EQ(outcome.status, 2) << arguments.front();
        EXPECT_THAT(outcome.errors, StartsWith("standard output: /: ")) << arguments.front();
        EXPECT_THAT(outcome.errorLines(), SizeIs(1)) << arguments.front();
    }
}

TEST_F(Output, OperatesNoTerminal) {
    const auto red = folder.write("red.json", Json{{"offers", offersOf(redSku)}, {"steps", Json::array({{{"tap", "Nothing"}}})}});
    const auto redOffers = folder.write("red-offers.json", offersOf(redSku));
    Json doubled = offersOf(redSku);
    for (Json& option : doubled["options"])
        option["SKU"] = redSku, option["price"] = "\x1b[31m1\xc2\x9b"
                                                  "31m";
    const auto doubledOffers = folder.write("doubled.json", doubled);

    for (const auto& arguments : std::vector<std::vector<std::string>>{{"run", red.string()},
                                                                       {"lint", redOffers.string()},
                                                                       {"lint", doubledOffers.string()},
                                                                       {"read", "paywall", "--offers", doubledOffers.string()}}) {
        const Outcome outcome = runProgram(arguments);

        EXPECT_THAT(outcome.errors + outcome.output, operatesNoTerminal) << arguments.front();
    }
    EXPECT_THAT(runProgram({"run", red.string()}).errors, HasSubstr("plan.pro")) << "there is no list";
}

TEST_F(Output, OfSnapshotsFollowsNoLink) {
    const Folder elsewhere;
    const auto target = elsewhere.write("kept.txt", std::string("kept"));
    std::filesystem::create_symlink(target, folder.path() / "late.png");
    std::filesystem::create_symlink(target, folder.path() / "late.png.part");

    const Outcome outcome = runProgram({"run", scenario.string(), "--out", folder.path().string()});

    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_EQ(bytesOf(target), "kept");
    EXPECT_FALSE(std::filesystem::is_symlink(folder.path() / "late.png"));
}

TEST_F(Output, OfADocumentFollowsNoLink) {
    const Folder elsewhere;
    const auto target = elsewhere.write("kept.txt", std::string("kept"));
    const auto page = folder.path() / "page.html";
    std::filesystem::create_symlink(target, page);
    std::filesystem::create_symlink(target, folder.path() / "page.html.part");

    const Outcome outcome = runProgram({"evidence", scenario.string(), "--out", page.string()});

    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_EQ(bytesOf(target), "kept");
    EXPECT_FALSE(std::filesystem::is_symlink(page));
}

TEST_F(Output, ThatCannotTakeItsPlaceLeavesWhatWasThere) {
    // A folder where the draft would be.
    const auto page = folder.write("page.html", std::string("before"));
    std::filesystem::create_directories(folder.path() / "page.html.part" / "full");
    std::filesystem::create_directories(folder.path() / "late.png.part" / "full");

    const Outcome document = runProgram({"evidence", scenario.string(), "--out", page.string()});
    const Outcome picture = runProgram({"run", scenario.string(), "--out", folder.path().string()});

    for (const Outcome& outcome : {document, picture}) {
        EXPECT_EQ(outcome.status, 2);
        EXPECT_THAT(outcome.errorLines(), SizeIs(1)) << outcome.errors;
    }
    EXPECT_EQ(bytesOf(page), "before");
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "late.png"));
}
