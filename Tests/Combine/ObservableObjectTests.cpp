#include <gmock/gmock.h>

#include <string>
#include <utility>
#include <vector>

#include "Platform/Combine/ObservableObject.hpp"

using namespace proupsells;

using combine::ObservableObject;
using combine::Published;
using combine::WillChange;
using testing::ElementsAre;

namespace {

struct Model : ObservableObject {
    Published<int> page{*this, 1};
    Published<std::string> title{*this};
};

TEST(PublishedField, AnnouncesAChangeBeforeItTakesEffect) {
    Model model;
    std::vector<int> seen;
    const auto token = model.objectWillChange.sink([&](WillChange) { seen.push_back(model.page); });

    model.page = 2;
    model.page.set(3);

    EXPECT_THAT(seen, ElementsAre(1, 2));
    EXPECT_EQ(model.page.get(), 3);
}

TEST(PublishedField, AnnouncesAWriteOfTheSameValueToo) {
    Model model;
    int announcements = 0;
    const auto token = model.objectWillChange.sink([&](WillChange) { ++announcements; });

    model.page = 1;

    EXPECT_EQ(announcements, 1);
}

TEST(PublishedField, SharesItsOwnersAnnouncement) {
    Model model;
    int announcements = 0;
    const auto token = model.objectWillChange.sink([&](WillChange) { ++announcements; });

    model.page = 2;
    model.title = std::string("Pro");

    EXPECT_EQ(announcements, 2);
    EXPECT_EQ(model.title->size(), 3u);
}

TEST(PublishedField, StartsWithItsInitialValueInSilence) {
    const Model model;

    EXPECT_EQ(model.page.get(), 1);
    EXPECT_EQ(model.title.get(), "");
}

TEST(PublishedField, TakesTheOuterValueWhenAnObserverWritesInBetween) {
    Model model;
    bool hasWritten = false;
    const auto token = model.objectWillChange.sink([&](WillChange) {
        if (!std::exchange(hasWritten, true)) model.page = 7;
    });

    model.page = 2;

    EXPECT_EQ(model.page.get(), 2);
}

} // namespace
