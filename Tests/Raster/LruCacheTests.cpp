#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "Backends/Raster/LruCache.hpp"

using namespace proupsells;

namespace {

using Cache = rasterbackend::LruCache<int, std::string, std::hash<int>>;

} // namespace

TEST(LruCache, FindsWhatWasInserted) {
    Cache cache(100);
    cache.insert(1, "one", 10);

    ASSERT_NE(cache.find(1), nullptr);
    EXPECT_EQ(*cache.find(1), "one");
    EXPECT_EQ(cache.find(2), nullptr);
}

TEST(LruCache, ForgetsWhatWasNotAskedForTheLongest) {
    Cache cache(100);
    cache.insert(1, "one", 40);
    cache.insert(2, "two", 40);
    cache.find(1);
    cache.insert(3, "three", 40);

    EXPECT_NE(cache.find(1), nullptr);
    EXPECT_EQ(cache.find(2), nullptr);
    EXPECT_NE(cache.find(3), nullptr);
    EXPECT_EQ(cache.byteCount(), 80u);
}

TEST(LruCache, KeepsTheNewestValueHoweverLarge) {
    Cache cache(100);
    cache.insert(1, "one", 40);
    cache.insert(2, "huge", 1000);

    EXPECT_EQ(cache.size(), 1u);
    EXPECT_NE(cache.find(2), nullptr);
}
