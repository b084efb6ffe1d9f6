// The page of a gallery, as text. What a browser makes of it is another test's business.
#include <gmock/gmock.h>

#include "Tooling/GalleryPage.hpp"

using namespace proupsells;

using testing::Eq;
using testing::HasSubstr;
using testing::Not;
using testing::Optional;

namespace {

tooling::GalleryPicture picture(std::string moment) {
    return {"paywall",           std::move(moment),   "en", "375x812", "large", "light", "00ff",
            "pictures/en/a.png", "pictures/en/a.txt", 750,  1624};
}

} // namespace

TEST(GalleryPage, HasThePicturesInIt) {
    const std::string page = tooling::galleryPage({.pictures = {picture("page 1")}});

    EXPECT_THAT(
        tooling::galleryDataOf(page),
        Optional(Eq("{\"version\":1,\"pictures\":[\n[\"paywall\",\"page 1\",\"en\",\"375x812\",\"large\",\"light\",\"00ff\","
                    "\"pictures/en/a.png\",\"pictures/en/a.txt\",750,1624]]}")));
}

TEST(GalleryPage, HasTheChangesInIt) {
    const std::string page = tooling::galleryPage(
        {.pictures = {}, .changes = std::vector<tooling::GalleryChange>{{std::nullopt, picture("page 1"), {"is new"}}}});

    EXPECT_THAT(std::string(tooling::galleryDataOf(page).value_or("")),
                HasSubstr("\"changes\":[\n{\"before\":null,\"after\":[\"paywall\""));
    EXPECT_THAT(std::string(tooling::galleryDataOf(page).value_or("")), HasSubstr("\"words\":[\n\"is new\"]}]}"));
}

TEST(GalleryPage, IsNotEndedByWhatATextSays) {
    const std::string page = tooling::galleryPage({.pictures = {picture("</script><b>{data}{script}\"\\\n")}});

    EXPECT_THAT(page, Not(HasSubstr("</script><b>")));
    EXPECT_THAT(std::string(tooling::galleryDataOf(page).value_or("")),
                HasSubstr("\"\\u003c/script\\u003e\\u003cb\\u003e{data}{script}\\\"\\\\\\u000a\""));
}

TEST(GalleryPage, NeedsNothingButWhatLiesBesideIt) {
    const std::string page = tooling::galleryPage({});

    for (const char* far : {"http:", "https:", "url(", "@import", "src=\"", "{style}", "{script}", "{data}"})
        EXPECT_THAT(page, Not(HasSubstr(far)));
}

TEST(GalleryData, IsAbsentFromOtherPages) {
    EXPECT_EQ(tooling::galleryDataOf("<!doctype html><p>Hello</p>"), std::nullopt);
    EXPECT_EQ(tooling::galleryDataOf("<script type=\"application/json\" id=\"gallery\">{"), std::nullopt);
}
