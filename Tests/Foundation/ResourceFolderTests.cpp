#include <gtest/gtest.h>

#include "Platform/Foundation/ResourceFolder.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

using namespace proupsells;

using foundation::resourceFolder;

namespace {

class ResourceFolder : public testing::Test {
protected:
    ~ResourceFolder() override { foundation::setResourceRoot({}); }

    std::filesystem::path made(const char* name) const {
        std::filesystem::create_directories(folder.path() / name);
        return folder.path() / name;
    }

    tests::TemporaryFolder folder;
};

TEST_F(ResourceFolder, IsTheSourcesOwnWhereTheyAre) {
    const auto sources = made("sources");
    made("installed/Kit");

    EXPECT_EQ(resourceFolder("Kit", sources, folder.path() / "installed"), sources);
}

TEST_F(ResourceFolder, IsTheInstalledOneWhereTheSourcesAreGone) {
    const auto installed = made("installed/Kit");

    EXPECT_EQ(resourceFolder("Kit", folder.path() / "gone", folder.path() / "installed"), installed);
}

TEST_F(ResourceFolder, IsTheHostsOwnBeforeAllOthers) {
    const auto sources = made("sources");
    const auto own = made("own/Kit");

    foundation::setResourceRoot(folder.path() / "own");

    EXPECT_EQ(resourceFolder("Kit", sources, {}), own);
    EXPECT_EQ(resourceFolder("Other", sources, {}), sources);
}

TEST_F(ResourceFolder, IsTheSourcesWhereThereIsNone) {
    EXPECT_EQ(resourceFolder("Kit", folder.path() / "gone", {}), folder.path() / "gone");
}

} // namespace
