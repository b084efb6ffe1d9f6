// What a gallery that is compared with must be like, file by file and row by row.
#include <gmock/gmock.h>

#include "Tests/HostProgram/Program.hpp"

namespace proupsells::tests {

namespace {

const char* const goodRow = R"(["paywall","page 1","en","320x568","large","light","0","a.png","a.txt",1,1])";

class GalleryInput : public testing::Test {
protected:
    // What is said about comparing with a gallery whose page has this in it, behind the page's name; the name itself where it
    // is another file's.
    std::string complaintAboutPage(const std::string& page) {
        const std::string file = folder.write("old/index.html", page).string();
        const auto matrix = folder.write("matrix.json", Json{{"screens", {"comparison"}},
                                                             {"locales", {"en"}},
                                                             {"sizes", {{320, 300}}},
                                                             {"textSizes", {"small"}},
                                                             {"appearances", {"light"}},
                                                             {"scale", 0.25}});
        const std::string out = (folder.path() / "new").string();
        const Outcome outcome =
            runProgram({"gallery", "--out", out, "--matrix", matrix.string(), "--compare", (folder.path() / "old").string()});
        EXPECT_EQ(outcome.status == 2, !outcome.errors.empty());
        std::filesystem::remove_all(out);
        return outcome.errors.starts_with(file + ": /: ") ? outcome.errors.substr(file.size() + 5) : outcome.errors;
    }
    std::string complaintAbout(const std::string& data) {
        return complaintAboutPage("<script type=\"application/json\" id=\"gallery\">" + data + "</script>");
    }
    std::string complaintAboutRow(const std::string& row) { return complaintAbout(R"({"version":1,"pictures":[)" + row + "]}"); }

    Folder folder;
};

constexpr const char* isNoGallery = "the data in the page is not a gallery's, expected the page of a gallery\n";

} // namespace

TEST_F(GalleryInput, IsAPageWithDataInIt) {
    EXPECT_EQ(complaintAboutPage("<p>My own page</p>"), "the file is something else, expected the page of a gallery\n");
    EXPECT_EQ(complaintAboutPage(""), "the file is something else, expected the page of a gallery\n");
    for (const char* data : {"[]", "{}", "{", R"({"version":1})", R"({"pictures":[]})", R"({"version":2,"pictures":[]})",
                             R"({"version":1,"pictures":{}})", R"({"version":1,"pictures":[],"changes":{}})",
                             R"({"version":1,"pictures":[],"changes":[1]})", R"({"version":1,"pictures":[],"changes":[{}]})",
                             R"({"version":1,"pictures":[],"changes":[{"before":[]}]})"})
        EXPECT_EQ(complaintAbout(data), isNoGallery) << data;
}

TEST_F(GalleryInput, MayBeEmptyOrHaveChangesItself) {
    for (const std::string data : {R"({"version":1,"pictures":[]})", R"({"version":1,"pictures":[],"changes":[]})",
                                   R"({"version":1,"pictures":[],"changes":[{"before":null}]})"})
        EXPECT_EQ(complaintAbout(data), "") << data;
    EXPECT_EQ(complaintAbout(R"({"version":1,"pictures":[],"changes":[{"before":)" + std::string(goodRow) + "}]}"), "");
}

TEST_F(GalleryInput, HasRowsOfNineTextsAndTwoNumbers) {
    EXPECT_EQ(complaintAboutRow("1"), isNoGallery);
    EXPECT_EQ(complaintAboutRow("{}"), isNoGallery);
    const Json good = Json::parse(goodRow);
    for (std::size_t column = 0; column < good.size(); ++column) {
        Json row = good;
        row[column] = column < 9 ? Json(1) : Json("1");
        EXPECT_EQ(complaintAboutRow(row.dump()), isNoGallery) << row;
    }
    Json longer = good, shorter = good;
    longer.push_back(1);
    shorter.erase(shorter.size() - 1);
    EXPECT_EQ(complaintAboutRow(longer.dump()), isNoGallery);
    EXPECT_EQ(complaintAboutRow(shorter.dump()), isNoGallery);
    for (const std::size_t column : {9u, 10u}) {
        Json row = good;
        row[column] = 1.5;
        EXPECT_EQ(complaintAboutRow(row.dump()), isNoGallery) << row;
    }
}

TEST_F(GalleryInput, NamesFilesInItsFolderOnly) {
    for (const char* name : {"", "/etc/passwd", "../a", "a/../../b", "./a", "a/", "a\\b", ".."})
        for (const std::size_t column : {7u, 8u}) {
            Json row = Json::parse(goodRow);
            row[column] = name;
            EXPECT_EQ(complaintAboutRow(row.dump()), isNoGallery) << row;
        }
}

TEST_F(GalleryInput, HasTheFilesThatItNames) {
    const std::string old = (folder.path() / "old").string();
    EXPECT_EQ(complaintAboutRow(goodRow), old + "/a.png: /: the file cannot be read, expected one that the gallery's page names\n");

    folder.write("old/a.png", std::string("no picture"));
    EXPECT_EQ(complaintAboutRow(goodRow), old + "/a.txt: /: the file cannot be read, expected one that the gallery's page names\n");
}

TEST_F(GalleryInput, HasTreesThatAGalleryHasWritten) {
    const std::string row = R"(["comparison","at first","en","320x300","small","light","0","a.png","a.txt",1,1])";
    folder.write("old/a.png", std::string("no picture"));
    folder.write("old/a.txt", std::string("no tree"));

    EXPECT_EQ(complaintAboutRow(row),
              (folder.path() / "old/a.txt").string() + ": /: the file is no tree, expected one that a gallery has written\n");
}

} // namespace proupsells::tests
