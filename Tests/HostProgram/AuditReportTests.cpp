// What `audit` prints, in each of its formats, key by key.
#include <gmock/gmock.h>

#include "Tests/HostProgram/Program.hpp"

namespace proupsells::tests {

namespace {

// The one finding that the sample offers' paywall has, on a screen of an odd width.
class AuditReport : public testing::Test {
protected:
    Outcome audit(const std::string& format, const Json& appearances = {"dark"}) {
        const Json matrix{{"screens", {"paywall"}},
                          {"locales", {"en"}},
                          {"sizes", {{320.5, 568}}},
                          {"textSizes", {"large"}},
                          {"appearances", appearances}};
        return runProgram({"audit", "--matrix", folder.write("matrix.json", matrix).string(), "--format", format});
    }

    Folder folder;
    const std::string message = "Button comparePlans is 320.5 x 24 points and can be touched in 320.5 x 38",
                      advice = "Make the control 44 x 44 points; what is touched may be larger than what is seen.",
                      path = "0.0.0.0.0.0.0.0.2.0";
};

} // namespace

TEST_F(AuditReport, IsALineForEachFinding) {
    const std::string line = "paywall comparePlans " + path + ": small target: " + message + ". " + advice;

    const Outcome once = audit("text");
    EXPECT_EQ(once.output, line + " [en large 320.5x568 dark, the smallest width of 1 configuration]\n");
    EXPECT_EQ(once.status, 1);
    EXPECT_EQ(audit("text", {"light", "dark"}).output,
              line + " [en large 320.5x568 light, the smallest width of 2 configurations]\n");
}

TEST_F(AuditReport, HasEveryKeyInJson) {
    const Outcome outcome = audit("json");

    EXPECT_EQ(Json::parse(outcome.output), Json({{"findings", Json::array({Json{{"screen", "paywall"},
                                                                                {"rule", "small target"},
                                                                                {"path", path},
                                                                                {"identifier", "comparePlans"},
                                                                                {"message", message},
                                                                                {"advice", advice},
                                                                                {"configuration", "en large 320.5x568 dark"},
                                                                                {"smallestWidth", 320.5},
                                                                                {"configurations", 1}}})}}));
    EXPECT_TRUE(outcome.output.starts_with("{\n  \"findings\": [\n    {\n      \"screen\": "));
    EXPECT_EQ(outcome.status, 1);
}

TEST_F(AuditReport, IsWhatMachinesShowBesideSources) {
    const Outcome outcome = audit("sarif");

    Json report = Json::parse(outcome.output);
    std::vector<std::string> rules;
    for (const Json& rule : report["runs"][0]["tool"]["driver"]["rules"]) {
        rules.push_back(rule["id"]);
        EXPECT_FALSE(rule["help"]["text"].get<std::string>().empty()) << rule;
        if (rule["id"] == "small target") {
            EXPECT_EQ(rule["help"]["text"], advice);
        }
    }
    EXPECT_THAT(rules, testing::IsSupersetOf({"truncated", "broken word", "outside", "unreachable", "overlapping", "small control",
                                              "small target", "untranslated", "faint", "no name", "fixed size", "no keyboard"}));
    report["runs"][0]["tool"]["driver"].erase("rules");
    const Json place{{"fullyQualifiedName", "paywall comparePlans " + path}, {"kind", "element"}};
    const Json result{
        {"ruleId", "small target"},
        {"level", "warning"},
        {"message", {{"text", message + ". " + advice + " (en large 320.5x568 dark, the smallest width of 1 configuration)"}}},
        {"locations", Json::array({Json{{"logicalLocations", Json::array({place})}}})}};
    const Json run{{"tool", {{"driver", {{"name", "proupsells audit"}}}}}, {"results", Json::array({result})}};
    EXPECT_EQ(
        report,
        Json({{"$schema", "https://json.schemastore.org/sarif-2.1.0.json"}, {"version", "2.1.0"}, {"runs", Json::array({run})}}));
    EXPECT_EQ(outcome.status, 1);
}

} // namespace proupsells::tests
