#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Backends/Raster/FaceFolder.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

namespace proupsells::rasterbackend {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(FaceFolder, HasTheFacesWhoseFilesNameAFamilyAndAWeight) {
    const tests::TemporaryFolder folder;
    for (const char* name : {"Any Face-400.otf", "Any Face-700.ttf", "Any-Other-1.ttf", "Face-0.otf", "Face-Bold.otf", "Face.otf",
                             "400.ttf", "Face-400.txt", "Face-400.ttx", "Face-400"})
        folder.write(name, "");

    std::vector<std::string> faces;
    for (const FaceFile& face : facesInFolder(folder.path())) {
        EXPECT_EQ(face.path.parent_path(), folder.path());
        faces.push_back(face.path.filename().string() + ": " + face.family + ", " + std::to_string(face.weight));
    }
    std::sort(faces.begin(), faces.end());

    EXPECT_THAT(faces,
                ElementsAre("Any Face-400.otf: Any Face, 400", "Any Face-700.ttf: Any Face, 700", "Any-Other-1.ttf: Any-Other, 1"));
}

TEST(FaceFolder, HasNoFacesWhereThereIsNoFolder) { EXPECT_THAT(facesInFolder("no such folder"), IsEmpty()); }

} // namespace
} // namespace proupsells::rasterbackend
