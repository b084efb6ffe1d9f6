// The folder of a gallery, and what must not happen to other files in it.
#include <gmock/gmock.h>

#include <algorithm>
#include <functional>
#include <stdexcept>

#include <sys/resource.h>

#include "Apps/ProUpsellsHost/GalleryFolder.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

namespace proupsells::hostprogram {

namespace fs = std::filesystem;

using ::testing::ElementsAre;

namespace {

class FolderOfAGallery : public ::testing::Test {
protected:
    fs::path path(const std::string& name) const { return folder.path() / name; }
    // What is below the gallery's folder, sorted.
    std::vector<std::string> names() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::recursive_directory_iterator(path("out")))
            names.push_back(entry.path().lexically_relative(path("out")).string());
        std::sort(names.begin(), names.end());
        return names;
    }
    static tooling::Gallery galleryOf(const std::vector<std::string>& files) {
        tooling::Gallery gallery;
        for (const std::string& file : files) {
            tooling::GalleryPicture picture;
            picture.file = file + ".png";
            picture.tree = file + ".txt";
            gallery.pictures.push_back(picture);
        }
        return gallery;
    }
    // What is said where something cannot be done; empty where it can.
    static std::string complaintOf(const std::function<void()>& deed) {
        try {
            deed();
        } catch (const std::runtime_error& error) {
            return error.what();
        }
        return {};
    }

    tests::TemporaryFolder folder;
};

const std::string isExpected = ", expected a folder to write a gallery into";

} // namespace

TEST_F(FolderOfAGallery, IsMadeWithAnEmptyPage) {
    const GalleryFolder made(path("out"));

    EXPECT_THAT(names(), ElementsAre("index.html"));
    EXPECT_EQ(GalleryFolder(path("out/")).path(), path("out"));
    EXPECT_TRUE(readGallery(path("out")).pictures.empty());
}

TEST_F(FolderOfAGallery, MakesFoldersOnTheWayAndLeavesNoDraft) {
    const GalleryFolder made(path("out"));
    folder.write("out/a/b/c.txt.part", std::string_view("half of it"));

    made.write("a/b/c.txt", "first");
    made.write("a/b/c.txt", "second");

    EXPECT_THAT(names(), ElementsAre("a", "a/b", "a/b/c.txt", "index.html"));
    EXPECT_EQ(tests::bytesOf(path("out/a/b/c.txt")), "second");
}

TEST_F(FolderOfAGallery, IsRefusedWhereThereAreOtherThings) {
    folder.write("file", std::string_view("a file"));
    folder.write("mine/index.html", std::string_view("my own page"));
    folder.write("notes/notes.txt", std::string_view("my notes"));
    GalleryFolder made(path("out"));
    fs::create_directory(path("linked"));
    fs::create_symlink(path("out/index.html"), path("linked/index.html"));

    EXPECT_EQ(complaintOf([&] { GalleryFolder(path("file")); }),
              path("file").string() + ": /: the folder cannot be made" + isExpected);
    for (const char* name : {"mine", "notes", "linked"})
        EXPECT_EQ(complaintOf([&] { GalleryFolder(path(name)); }),
                  path(name).string() + ": /: the folder holds other things than a gallery" + isExpected);
}

TEST_F(FolderOfAGallery, IsRefusedWhereItCannotBeRead) {
    fs::create_directory(path("out"));
    rlimit usual{};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &usual), 0);
    const rlimit none{0, usual.rlim_max};
    std::string complaint;
    // Nobody opens anything now.
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &none), 0);
    complaint = complaintOf([&] { GalleryFolder(path("out")); });
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &usual), 0);

    EXPECT_EQ(complaint, path("out").string() + ": /: the folder cannot be read" + isExpected);
}

TEST_F(FolderOfAGallery, WritesThroughNoLinkAndOverNoFolder) {
    const GalleryFolder made(path("out"));
    fs::create_directory(path("elsewhere"));
    fs::create_directory_symlink(path("elsewhere"), path("out/linked"));
    folder.write("out/file", std::string_view("a file"));
    folder.write("out/folder/inside", std::string_view("a file"));

    for (const char* name : {"linked", "file"})
        EXPECT_EQ(complaintOf([&] { made.write(std::string(name) + "/a.txt", "a"); }),
                  path("out").string() + "/" + name + ": /: this is no folder and none can be made" + isExpected);
    EXPECT_EQ(complaintOf([&] { made.write("folder", "a"); }),
              path("out/folder").string() + ": /: the file cannot be written" + isExpected);
    EXPECT_TRUE(fs::is_empty(path("elsewhere")));
    EXPECT_FALSE(fs::exists(path("out/folder.part")));
}

TEST_F(FolderOfAGallery, LosesWhatIsNoLongerShownAndFoldersThatAreEmptyThen) {
    const GalleryFolder made(path("out"));
    for (const char* name : {"de/a", "de/deep/b", "en/a", "en/b"})
        for (const char* ending : {".png", ".txt"}) made.write(name + std::string(ending), "bytes");
    folder.write("out/en/notes.txt", std::string_view("mine"));
    tooling::Gallery former = galleryOf({"de/a", "de/deep/b", "en/a"});
    former.changes.emplace();
    former.changes->push_back({.before = galleryOf({"en/b"}).pictures.front(), .after = {}, .words = {}});

    made.removeLeftOvers(former, galleryOf({"en/a"}));

    EXPECT_THAT(names(), ElementsAre("en", "en/a.png", "en/a.txt", "en/notes.txt", "index.html"));
}

TEST_F(FolderOfAGallery, LosesNothingBehindALink) {
    const GalleryFolder made(path("out"));
    folder.write("elsewhere/a.png", std::string_view("mine"));
    fs::create_directory_symlink(path("elsewhere"), path("out/linked"));
    fs::create_symlink(path("elsewhere/a.png"), path("out/b.png"));

    made.removeLeftOvers(galleryOf({"linked/a", "b"}), {});

    EXPECT_EQ(tests::bytesOf(path("elsewhere/a.png")), "mine");
    EXPECT_THAT(names(), ElementsAre("b.png", "index.html", "linked"));
}

} // namespace proupsells::hostprogram
