// Clip views on a screen, with a decoder that counts what it is asked for.
#include <gmock/gmock.h>

#include "Backends/Headless/FakeClipDecoder.hpp"
#include "Backends/Headless/TestBed.hpp"
#include "Platform/UIKit/Controllers/UIWindow.hpp"
#include "Platform/VelaUIKit/VideoView.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

namespace proupsells::velauikit {

using headless::FakeClipDecoder;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

host::Services servicesWith(std::shared_ptr<host::ClipDecoder> decoder) {
    host::Services services;
    services.clipDecoder = std::move(decoder);
    return services;
}

// A window of 300 × 200 with a 100 × 100 clip view in its corner; the made-up pictures are 4 × 2 and last 0.125 s, a film 4 s.
class VideoViewTest : public testing::Test {
protected:
    VideoViewTest()
        : decoder(std::make_shared<FakeClipDecoder>()), bed(servicesWith(decoder)), window(uikit::UIWindow::create({300, 200})) {
        folder.write("one.mp4", "");
        folder.write("two.mp4", "");
        window->setRootViewController(std::make_shared<uikit::UIViewController>());
        view = addView();
    }

    std::shared_ptr<VideoView> addView(const geometry::Rect& frame = {{0, 0}, {100, 100}}) {
        auto added = std::make_shared<VideoView>();
        added->setFrame(frame);
        root().addSubview(added);
        return added;
    }
    void play(VideoView& video, const std::string& name = "one.mp4") {
        video.setFile(folder.path() / name);
        video.play();
    }
    void setReduceMotion(bool reduces) {
        uikit::UITraitCollection traits;
        traits.reduceMotion = reduces;
        window->setTraits(traits);
    }
    uikit::UIView& root() { return *window->rootViewController()->view(); }
    graphics::DisplayList painted() {
        graphics::DisplayList list;
        window->paint(list);
        return list;
    }
    // The numbers of the pictures on the screen, back to front.
    std::vector<int> shownPictures() {
        const graphics::DisplayList list = painted();
        std::vector<int> numbers;
        for (const graphics::Command& command : list.commands)
            if (command.kind == graphics::CommandKind::bitmap)
                numbers.push_back(FakeClipDecoder::pictureNumber(*list.bitmaps[std::size_t(command.resource)]));
        return numbers;
    }
    accessibility::SemanticNode node() { return window->semanticTree().children.front(); }

    tests::TemporaryFolder folder;
    std::shared_ptr<FakeClipDecoder> decoder;
    headless::TestBed bed;
    std::shared_ptr<uikit::UIWindow> window;
    std::shared_ptr<VideoView> view;
};

} // namespace

TEST_F(VideoViewTest, ShowsThePictureThatIsDue) {
    play(*view);

    EXPECT_THAT(shownPictures(), ElementsAre(0));
    bed.runUntil(1.3);
    EXPECT_THAT(shownPictures(), ElementsAre(10));
}

TEST_F(VideoViewTest, CountsTimeFromWhenItWasToldToPlay) {
    bed.runUntil(10);
    play(*view);

    bed.runUntil(10.5);

    EXPECT_THAT(shownPictures(), ElementsAre(4));
}

TEST_F(VideoViewTest, IsHeldByAPointerThatRestsOnItAndGoesOnFromThere) {
    play(*view);
    bed.runUntil(0.5);
    window->pointer(geometry::Point{50, 50});
    EXPECT_THAT(shownPictures(), ElementsAre(4));

    bed.runUntil(10);
    EXPECT_THAT(shownPictures(), ElementsAre(4));
    EXPECT_FALSE(window->isAnimating());

    window->pointer(std::nullopt);
    EXPECT_THAT(shownPictures(), ElementsAre(4));
    bed.runUntil(10.25);
    EXPECT_THAT(shownPictures(), ElementsAre(6));
}

TEST_F(VideoViewTest, IsHeldTogetherWithOtherViewsOfItsFile) {
    addView({{150, 0}, {100, 100}})->setFile(folder.path() / "one.mp4");
    play(*view);
    play(static_cast<VideoView&>(*root().subviews().back()));
    window->pointer(geometry::Point{50, 50});
    EXPECT_THAT(shownPictures(), ElementsAre(0, 0));

    bed.runUntil(3);

    EXPECT_THAT(shownPictures(), ElementsAre(0, 0));
}

TEST_F(VideoViewTest, RepeatsWithoutEnd) {
    play(*view);

    bed.runUntil(4001.25);

    EXPECT_THAT(shownPictures(), ElementsAre(10));
}

TEST_F(VideoViewTest, ShowsNothingWithoutAFile) {
    view->play();

    EXPECT_THAT(shownPictures(), IsEmpty());
    EXPECT_FALSE(window->isAnimating());
    EXPECT_FALSE(node().clipView.has_value());
}

TEST_F(VideoViewTest, ShowsNothingUntilItIsToldToPlay) {
    view->setFile(folder.path() / "one.mp4");

    EXPECT_THAT(shownPictures(), IsEmpty());
    EXPECT_THAT(decoder->openedFiles(), IsEmpty());
}

TEST_F(VideoViewTest, SaysNothingOfAMissingFile) {
    play(*view, "missing.mp4");

    EXPECT_THAT(shownPictures(), IsEmpty());
    EXPECT_THAT(shownPictures(), IsEmpty());
    EXPECT_FALSE(window->isAnimating());
    EXPECT_THAT(bed.takeLogRecords(), IsEmpty());
}

TEST_F(VideoViewTest, LeavesOneLineForABrokenFileHoweverManyViewsShowIt) {
    decoder->breakFile("one.mp4");
    const auto second = addView();
    play(*view);
    play(*second);

    EXPECT_THAT(shownPictures(), IsEmpty());
    EXPECT_THAT(shownPictures(), IsEmpty());

    EXPECT_FALSE(window->isAnimating());
    EXPECT_EQ(bed.takeLogRecords().size(), 1u);
}

TEST_F(VideoViewTest, LeavesNoOtherLineForABrokenFileWhenItReturns) {
    decoder->breakFile("one.mp4");
    play(*view);
    painted();
    view->setFile({});
    painted();
    view->setFile(folder.path() / "one.mp4");

    painted();

    EXPECT_THAT(decoder->openedFiles(), ElementsAre("one.mp4", "one.mp4"));
    EXPECT_EQ(bed.takeLogRecords().size(), 1u);
}

TEST_F(VideoViewTest, RestsOnItsFirstPictureWhereLessMotionIsWanted) {
    setReduceMotion(true);
    play(*view);
    bed.runUntil(1.3);

    EXPECT_THAT(shownPictures(), ElementsAre(0));
    EXPECT_FALSE(window->isAnimating());
    EXPECT_EQ(node().clipView->time_s, 0);
}

TEST_F(VideoViewTest, FollowsTheWishForLessMotionAtOnce) {
    play(*view);
    bed.runUntil(1.3);
    EXPECT_THAT(shownPictures(), ElementsAre(10));
    int repaints = 0;
    window->setNeedsDisplayHandler([&] { ++repaints; });

    setReduceMotion(true);
    bed.runUntil(1.4);
    EXPECT_EQ(repaints, 1);
    EXPECT_THAT(shownPictures(), ElementsAre(0));
    EXPECT_FALSE(window->isAnimating());

    setReduceMotion(false);
    bed.runUntil(1.5);
    EXPECT_EQ(repaints, 2);
    EXPECT_THAT(shownPictures(), ElementsAre(12));
    EXPECT_TRUE(window->isAnimating());
}

TEST_F(VideoViewTest, WaitsForItsFirstPictureWhereLessMotionIsWanted) {
    setReduceMotion(true);
    decoder->setHeldBack(true);
    play(*view);
    EXPECT_THAT(shownPictures(), IsEmpty());
    EXPECT_TRUE(window->isAnimating());

    decoder->setHeldBack(false);

    painted();
    EXPECT_TRUE(window->isAnimating()); // it fades in
    bed.runFor(0.15);
    EXPECT_THAT(shownPictures(), ElementsAre(0));
    EXPECT_FALSE(window->isAnimating());
}

TEST_F(VideoViewTest, FadesAPictureInThatComesWhileTheEmptyViewIsSeen) {
    const auto opacity = [this] {
        const graphics::DisplayList list = painted();
        return list.commands.empty() ? 0 : double(list.commands.back().opacity);
    };
    decoder->setHeldBack(true);
    play(*view);
    EXPECT_EQ(opacity(), 0);

    decoder->setHeldBack(false);
    EXPECT_EQ(opacity(), 0);
    EXPECT_TRUE(window->isAnimating());
    bed.runFor(0.05);
    const double early = opacity();
    EXPECT_GT(early, 0);
    EXPECT_LT(early, 1);
    bed.runFor(0.05);
    EXPECT_GT(opacity(), early);
    bed.runFor(0.05);
    EXPECT_EQ(opacity(), 1);
}

TEST_F(VideoViewTest, ShowsAPictureAtOnceThatIsThereInTime) {
    play(*view);

    EXPECT_EQ(painted().commands.back().opacity, 1);
}

TEST_F(VideoViewTest, GoesBackToItsFirstPictureWhenTheDecoderHasIt) {
    play(*view);
    bed.runUntil(1.3);
    painted();
    decoder->setHeldBack(true);
    setReduceMotion(true);
    EXPECT_THAT(shownPictures(), ElementsAre(10));
    EXPECT_TRUE(window->isAnimating());

    decoder->setHeldBack(false);

    EXPECT_THAT(shownPictures(), ElementsAre(0));
    EXPECT_FALSE(window->isAnimating());
}

TEST_F(VideoViewTest, ShowsNothingWhereThereIsNoDecoder) {
    const host::Installation without{servicesWith(nullptr)};
    play(*view);

    EXPECT_THAT(shownPictures(), IsEmpty());
    EXPECT_FALSE(window->isAnimating());
}

TEST_F(VideoViewTest, DecodesAFileOnceForAllItsViews) {
    const auto second = addView({{100, 0}, {100, 100}}), third = addView({{200, 0}, {100, 100}});
    play(*view);
    play(*second);
    bed.runUntil(0.1);
    play(*third); // joins in where the others are

    bed.runUntil(0.2);

    EXPECT_THAT(shownPictures(), ElementsAre(1, 1, 1));
    EXPECT_THAT(decoder->openedFiles(), ElementsAre("one.mp4"));
    EXPECT_EQ(decoder->decodedCount(), 1);
}

TEST_F(VideoViewTest, AsksForNothingWhileItIsOffTheScreen) {
    view->setFrame({{-100, 0}, {100, 100}});
    play(*view);

    bed.runUntil(1);

    EXPECT_THAT(shownPictures(), IsEmpty());
    EXPECT_FALSE(window->isAnimating());
    EXPECT_FALSE(node().clipView->time_s.has_value());
    EXPECT_EQ(decoder->questionCount(), 0);
}

TEST_F(VideoViewTest, AnimatesOnlyWhatTheLastPaintingShowed) {
    play(*view);
    EXPECT_FALSE(window->isAnimating());
    painted();
    EXPECT_TRUE(window->isAnimating());

    view->setFrame({{0, 200}, {100, 100}});
    painted();

    EXPECT_FALSE(window->isAnimating());
    view->setFrame({{0, 199}, {100, 100}});
    painted();
    EXPECT_TRUE(window->isAnimating());
}

TEST_F(VideoViewTest, RestsInsideAParentThatIsHiddenOrScrolledAway) {
    play(*view);
    painted();
    root().setAlpha(0);

    painted();

    EXPECT_FALSE(window->isAnimating());
}

TEST_F(VideoViewTest, FitsThePictureIn) {
    play(*view);

    const graphics::DisplayList list = painted();

    EXPECT_EQ(list.commands.back().frame, (geometry::Rect{{0, 25}, {100, 50}}));
}

TEST_F(VideoViewTest, FillsAViewThatClips) {
    view->setClipsToBounds(true);
    view->setCornerRadius(10);
    play(*view);

    const graphics::Command command = painted().commands.back();

    EXPECT_EQ(command.frame, (geometry::Rect{{-50, 0}, {200, 100}}));
    EXPECT_EQ(command.clip, (geometry::Rect{{0, 0}, {100, 100}}));
    EXPECT_EQ(command.clipRadius, 10);
}

TEST_F(VideoViewTest, NamesTheClipAndThePicturesTime) {
    play(*view, "two.mp4");
    bed.runUntil(0.3);

    EXPECT_EQ(node().type, "VideoView");
    EXPECT_EQ(node().clipView->name, "two");
    EXPECT_EQ(node().clipView->time_s, 0.25);
}

TEST_F(VideoViewTest, ChangesItsFileWhileItPlays) {
    play(*view);
    bed.runUntil(1);
    painted();

    view->setFile(folder.path() / "two.mp4");

    EXPECT_THAT(shownPictures(), ElementsAre(0));
    EXPECT_THAT(decoder->openedFiles(), ElementsAre("one.mp4", "two.mp4"));
    EXPECT_EQ(decoder->openCount(), 1);
    view->setFile({});
    EXPECT_THAT(shownPictures(), IsEmpty());
    EXPECT_EQ(decoder->openCount(), 0);
}

TEST_F(VideoViewTest, LetsGoOfItsClipAtItsEnd) {
    play(*view);
    painted();

    view->removeFromSuperview();
    view.reset();

    EXPECT_EQ(decoder->openCount(), 0);
}

} // namespace proupsells::velauikit
