// What is said of the difference between two galleries.
#include <gmock/gmock.h>

#include <map>

#include "Tooling/GalleryComparison.hpp"

using namespace proupsells;

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using tooling::GalleryPicture;
using tooling::ScreenTree;

namespace {

GalleryPicture pictureAt(std::string moment, std::string digest, std::string tree) {
    return {"paywall", std::move(moment), "en", "375x812", "large", "light", std::move(digest),
            "a.png",   std::move(tree),   750,  1624};
}

ScreenTree button(double y) { return {"Button", {{0, y}, {100, 44}}, {{"identifier", "subscribe"}}, {}}; }

class GalleryComparison : public testing::Test {
protected:
    std::vector<tooling::GalleryChange> compare(const std::vector<GalleryPicture>& before,
                                                const std::vector<GalleryPicture>& after) {
        const auto treeOf = [this](const GalleryPicture& picture) { return trees.at(picture.tree); };
        return tooling::galleryChanges(before, after, {treeOf, treeOf, [](const auto&, const auto&) { return "3 pixels"; }});
    }

    std::map<std::string, ScreenTree> trees{{"here", button(20)}, {"there", button(32)}};
};

} // namespace

TEST_F(GalleryComparison, HasNothingToSayOfWhatIsAsBefore) {
    EXPECT_THAT(compare({pictureAt("page 1", "a", "here")}, {pictureAt("page 1", "a", "here")}), IsEmpty());
}

TEST_F(GalleryComparison, SaysWhichNodeMovedAndByHowMuch) {
    const auto changes = compare({pictureAt("page 1", "a", "here")}, {pictureAt("page 1", "b", "there")});

    ASSERT_THAT(changes, SizeIs(1));
    EXPECT_THAT(changes[0].words, ElementsAre("subscribe moved by 0, 12"));
    EXPECT_EQ(changes[0].before->digest, "a");
    EXPECT_EQ(changes[0].after->digest, "b");
}

TEST_F(GalleryComparison, SaysWhereTheSameTreeLooksDifferent) {
    const auto changes = compare({pictureAt("page 1", "a", "here")}, {pictureAt("page 1", "b", "here")});

    ASSERT_THAT(changes, SizeIs(1));
    EXPECT_THAT(changes[0].words, ElementsAre("looks different, the same tree"));
    EXPECT_EQ(changes[0].pixels, "3 pixels");
}

TEST_F(GalleryComparison, TellsOfATreeThatChangedBehindTheSamePixels) {
    const auto changes = compare({pictureAt("page 1", "a", "here")}, {pictureAt("page 1", "a", "there")});

    ASSERT_THAT(changes, SizeIs(1));
    EXPECT_THAT(changes[0].words, ElementsAre("subscribe moved by 0, 12"));
}

TEST_F(GalleryComparison, TellsOfPicturesThatHaveComeAndGone) {
    const auto changes = compare({pictureAt("page 1", "a", "here")}, {pictureAt("page 2", "a", "here")});

    ASSERT_THAT(changes, SizeIs(2));
    EXPECT_EQ(changes[0].after->moment, "page 2");
    EXPECT_THAT(changes[0].words, ElementsAre("is new"));
    EXPECT_EQ(changes[1].before->moment, "page 1");
    EXPECT_THAT(changes[1].words, ElementsAre("is gone"));
}

TEST_F(GalleryComparison, SaysThatPicturesHaveAnotherNumberOfPixels) {
    GalleryPicture small = pictureAt("page 1", "a", "here");
    small.width = 375;
    small.height = 812;

    const auto changes = compare({small}, {pictureAt("page 1", "b", "here")});

    ASSERT_THAT(changes, SizeIs(1));
    EXPECT_THAT(changes[0].words, ElementsAre("the picture has 750 x 1624 pixels instead of 375 x 812 pixels"));
}

TEST_F(GalleryComparison, DoesNotConfuseNamesThatReadTheSameInARow) {
    GalleryPicture before = pictureAt("page 1", "a", "here"), after = before;
    before.screen = "a";
    before.moment = "bc";
    after.screen = "ab";
    after.moment = "c";

    EXPECT_THAT(compare({before}, {after}), SizeIs(2));
}

TEST_F(GalleryComparison, ReportsEachSentenceOnceWithTheNumberOfPictures) {
    const auto changes =
        compare({pictureAt("page 1", "a", "here"), pictureAt("page 2", "a", "here")},
                {pictureAt("page 1", "b", "there"), pictureAt("page 2", "b", "there"), pictureAt("end", "b", "there")});

    EXPECT_EQ(tooling::galleryReport(changes),
              "paywall: subscribe moved by 0, 12 [page 1, en 375x812 large light, the first of 2 pictures]\n"
              "paywall: is new [end, en 375x812 large light]\n");
}
