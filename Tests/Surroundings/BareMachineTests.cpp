// Surroundings that lack what the program might have looked for: it brings its own faces, and its texts need no locale of the
// system.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Tests/HostProgram/Program.hpp"

using namespace proupsells::tests;

using testing::IsEmpty;

namespace {

class Surroundings : public testing::Test {
protected:
    Surroundings() {
        scenario = folder.write("scenario.json",
                                Json{{"offers", sampleOffers()},
                                     {"device", {{"locale", "de_AT"}, {"scale", 1}}},
                                     {"steps", Json::array({{{"wait", 1}}, {{"snapshot", "late.png"}}, {{"dump", "screen"}}})}});
    }
    // Whether everything comes out the same with these variables, or without those that `env -u` names.
    void expectTheSameIn(const std::string& variables) const {
        SCOPED_TRACE(variables);
        const Outcome ordinary = runProgram(run("ordinary"));
        ASSERT_EQ(ordinary.status, 0) << ordinary.errors;

        const Outcome outcome = runProgramIn("exec env " + variables + " \"$0\" \"$@\"; ", run("strange"));

        EXPECT_EQ(outcome.status, 0);
        EXPECT_THAT(outcome.errors, IsEmpty());
        EXPECT_EQ(outcome.output, ordinary.output);
        EXPECT_EQ(bytesOf(folder.path() / "strange" / "late.png"), bytesOf(folder.path() / "ordinary" / "late.png"));
    }

    Folder folder;
    std::filesystem::path scenario;

private:
    std::vector<std::string> run(const std::string& out) const {
        return {"run", scenario.string(), "--out", (folder.path() / out).string()};
    }
};

} // namespace

TEST_F(Surroundings, WithoutFontsShowTheModulesOwnFaces) {
    expectTheSameIn("FONTCONFIG_FILE=/nowhere FONTCONFIG_PATH=/nowhere");
    expectTheSameIn("FONTCONFIG_FILE=/dev/null");
}

TEST_F(Surroundings, WithoutLocaleDataFormatTheSame) {
    expectTheSameIn("ICU_DATA=/nowhere");
    expectTheSameIn("LANG=xx_QQ LC_ALL=xx_QQ LANGUAGE=xx");
    expectTheSameIn("-u LANG -u LC_ALL -u LANGUAGE");
}

TEST_F(Surroundings, WithoutAHomeOrAPlaceForCachesAreNoneOfItsBusiness) {
    expectTheSameIn("-u HOME XDG_CACHE_HOME=/nowhere TMPDIR=/nowhere");
    expectTheSameIn("-i");
}
