#include <gmock/gmock.h>

#include "Platform/Foundation/StringsFile.hpp"
#include "Tooling/TranslationFiles.hpp"

using namespace proupsells;

using testing::Pair;
using testing::UnorderedElementsAre;
using tooling::TranslatableText;

namespace {

constexpr TranslatableText twoScreens[] = {
    {"Annually", "", "Paywall"},
    {"Say \"%@\"\n\\", "Ends */ early", "Paywall"},
    {"Free", "A heading", "Comparison"},
};

TEST(StringsFileForTranslators, HasAHeadingForEachScreenAndCommentsAboveTexts) {
    EXPECT_EQ(tooling::stringsFile(twoScreens),
              "/* Put your translation in the place of each text on the right. Keep %@, %1$@, %2$@, %% and ** as they are. */\n"
              "\n// --- Paywall ---\n\n"
              "\"Annually\" = \"Annually\";\n"
              "/* Ends * / early */\n"
              "\"Say \\\"%@\\\"\\n\\\\\" = \"Say \\\"%@\\\"\\n\\\\\";\n"
              "\n// --- Comparison ---\n\n"
              "/* A heading */\n"
              "\"Free\" = \"Free\";\n");
}

TEST(StringsFileForTranslators, IsReadBackAsItWasWritten) {
    const auto file = foundation::StringsFile::parse(tooling::stringsFile(twoScreens));

    EXPECT_FALSE(file.error);
    EXPECT_THAT(file.texts,
                UnorderedElementsAre(Pair("Annually", "Annually"), Pair("Say \"%@\"\n\\", "Say \"%@\"\n\\"), Pair("Free", "Free")));
}

TEST(PotFileForTranslators, HasAnEntryForEachText) {
    EXPECT_EQ(tooling::potFile(std::span(twoScreens).subspan(1)), "msgid \"\"\n"
                                                                  "msgstr \"\"\n"
                                                                  "\"Content-Type: text/plain; charset=UTF-8\\n\"\n"
                                                                  "\"Content-Transfer-Encoding: 8bit\\n\"\n"
                                                                  "\n#. Paywall\n"
                                                                  "#. Ends */ early\n"
                                                                  "#, objc-format\n"
                                                                  "msgid \"Say \\\"%@\\\"\\n\\\\\"\n"
                                                                  "msgstr \"\"\n"
                                                                  "\n#. Comparison\n"
                                                                  "#. A heading\n"
                                                                  "msgid \"Free\"\n"
                                                                  "msgstr \"\"\n");
}

} // namespace
