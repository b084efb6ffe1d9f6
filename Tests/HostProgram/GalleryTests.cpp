// `gallery`: pictures of all screens in one folder, and what has changed since another one.
#include <gmock/gmock.h>

#include <algorithm>
#include <map>

#include "Tests/HostProgram/Program.hpp"

using namespace proupsells;

using namespace tests;
using testing::AllOf;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

namespace {

// Of a picture in the page's data.
enum Column { screen, moment, locale, size, textSize, appearance, digest, file, tree, width, height };

// Every file below a folder with its bytes.
std::map<std::string, std::string> filesIn(const std::filesystem::path& folder) {
    std::map<std::string, std::string> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
        if (entry.is_regular_file()) files[std::filesystem::relative(entry, folder).string()] = bytesOf(entry);
    return files;
}

class GalleryCommand : public testing::Test {
protected:
    Outcome gallery(const std::string& out, std::vector<std::string> more = {}) {
        more.insert(more.begin(), {"gallery", "--out", path(out), "--matrix", folder.write("matrix.json", matrix).string()});
        return runProgram(more);
    }

    std::string path(const std::string& name) const { return (folder.path() / name).string(); }

    Json dataOf(const std::string& out) const {
        const std::string page = bytesOf(path(out + "/index.html")), begin = "id=\"gallery\">";
        const std::size_t at = page.find(begin) + begin.size();
        return Json::parse(page.substr(at, page.find("</script>", at) - at));
    }

    // The pictures of a moment in a gallery.
    Json pictures(const std::string& out, const std::string& name) const {
        const Json data = dataOf(out);
        Json found = Json::array();
        for (const Json& picture : data["pictures"])
            if (picture[moment] == name) found.push_back(picture);
        return found;
    }

    // In the order in which they come first.
    std::vector<std::string> moments(const std::string& out) const {
        const Json data = dataOf(out);
        std::vector<std::string> result;
        for (const Json& picture : data["pictures"])
            if (std::find(result.begin(), result.end(), picture[moment]) == result.end()) result.push_back(picture[moment]);
        return result;
    }

    std::string offersWithMonthlyPrice(const std::string& price) {
        Json offers = sampleOffers();
        offers["options"][1]["price"] = price;
        return folder.write("offers.json", offers).string();
    }

    Folder folder;
    Json matrix{{"screens", {"paywall"}}, {"locales", {"en"}},        {"sizes", {{320, 568}}},
                {"textSizes", {"large"}}, {"appearances", {"light"}}, {"scale", 1}};
};

} // namespace

TEST_F(GalleryCommand, ShowsEachPageThePlansAndTheWayBetween) {
    const Outcome outcome = gallery("out");

    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, path("out") + "/index.html: 8 pictures\n");
    EXPECT_THAT(outcome.errors, IsEmpty());
    EXPECT_THAT(moments("out"),
                ElementsAre("page 1", "plan pro.monthly", "turning", "page 2", "page 3", "page 4", "further down", "end"));
}

TEST_F(GalleryCommand, ShowsOpenAndClosedCategoriesAndEveryShelf) {
    matrix["screens"] = {"comparison", "store"};

    gallery("out");

    EXPECT_THAT(moments("out"),
                ElementsAre("at first", "all open", "category Content And Assets", "category Content And Assets 2",
                            "category Creation Tools", "category Business Growth Tools", "category Automation (AI Features)", "end",
                            "all closed", "opening", "drifting", "shelf ProIntroHeaderViewShelf", "shelf BrandAssetsShelf",
                            "shelf TemplatesShelf", "shelf PDFsShelf", "shelf LayoutCollectionsShelf", "shelf PremiumFontsShelf",
                            "shelf ShapesShelf", "shelf VideoImageLibrariesShelf"));
}

TEST_F(GalleryCommand, ShowsInPartsWhatIsHigherThanTheWindow) {
    matrix["screens"] = {"comparison"};
    matrix["textSizes"] = {"accessibilityExtraExtraExtraLarge"};

    gallery("out");

    EXPECT_THAT(moments("out"),
                IsSupersetOf({"category Content And Assets", "category Content And Assets 2", "category Content And Assets 3"}));
    EXPECT_NE(pictures("out", "category Content And Assets 2")[0][file], pictures("out", "category Content And Assets 3")[0][file]);
}

TEST_F(GalleryCommand, WritesAPictureAndATreeForEach) {
    matrix["scale"] = 2;

    gallery("out");

    const Json picture = pictures("out", "page 2")[0];
    const std::string png = bytesOf(path("out/" + picture[file].get<std::string>()));
    EXPECT_THAT(png, StartsWith("\x89PNG"));
    EXPECT_EQ(picture[width], 640);
    EXPECT_EQ(picture[height], 1136);
    EXPECT_THAT(bytesOf(path("out/" + picture[tree].get<std::string>())), HasSubstr("identifier=\"subscribe\""));
}

TEST_F(GalleryCommand, NamesPicturesAfterWhatTheyShow) {
    const std::string sku = "A.Very/Long:Name_" + std::string(60, 'x');
    Json offers = sampleOffers();
    offers["options"] = Json::array({offers["options"][0], offers["options"][1], offers["options"][1]});
    offers["options"][1]["SKU"] = sku + "1";
    offers["options"][2]["SKU"] = sku + "2";

    gallery("out", {folder.write("offers.json", offers).string()});

    const std::string begin = "pictures/en/paywall-320x568-large-light-";
    const std::string plan = begin + "plan-a.very-long-name-" + std::string(38, 'x');
    EXPECT_EQ(pictures("out", "page 1")[0][file], begin + "page-1.png");
    EXPECT_EQ(pictures("out", "further down")[0][tree], begin + "further-down.txt");
    EXPECT_EQ(pictures("out", "plan " + sku + "1")[0][tree], plan + ".txt");
    EXPECT_EQ(pictures("out", "plan " + sku + "2")[0][tree], plan + "-2.txt");
}

TEST_F(GalleryCommand, NamesPicturesInPlainCharactersAlone) {
    Json offers = sampleOffers();
    offers["options"][1]["SKU"] = "AMZamz059@[`{/:~ \u00fc!";

    gallery("out", {folder.write("offers.json", offers).string()});

    EXPECT_EQ(pictures("out", "plan AMZamz059@[`{/:~ \u00fc!")[0][tree],
              "pictures/en/paywall-320x568-large-light-plan-amzamz059-----------.txt");
}

TEST_F(GalleryCommand, ComesOutTheSameAgain) {
    matrix["screens"] = {"paywall", "comparison", "store"};

    gallery("first");
    gallery("second");

    EXPECT_EQ(filesIn(path("first")), filesIn(path("second")));
}

TEST_F(GalleryCommand, ShowsTheSameWhateverElseIsShown) {
    gallery("alone");
    matrix["locales"] = {"ar_XB", "en"};
    matrix["appearances"] = {"dark", "light"};
    matrix["sizes"] = {{375, 667}, {320, 568}};
    gallery("among others");

    const auto alone = filesIn(path("alone")), amongOthers = filesIn(path("among others"));
    for (const auto& [name, bytes] : alone) {
        if (name == "index.html") continue;
        EXPECT_EQ(amongOthers.at(name), bytes) << name;
    }
}

TEST_F(GalleryCommand, SharesPicturesThatLookTheSame) {
    // All of it is in sight, so its end is what was there.
    matrix["sizes"] = {{430, 1200}};

    gallery("out");

    EXPECT_EQ(pictures("out", "end")[0][file], pictures("out", "page 4")[0][file]);
}

TEST_F(GalleryCommand, HasNothingToSayOfTheSameScreens) {
    gallery("old");

    const Outcome outcome = gallery("new", {"--compare", path("old")});

    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, path("new") + "/index.html: 8 pictures, 0 changed, 0 new, 0 gone\n");
    EXPECT_THAT(dataOf("new")["changes"], IsEmpty());
}

TEST_F(GalleryCommand, SaysWhatAnotherOfferHasChanged) {
    gallery("old", {offersWithMonthlyPrice("$14.99")});

    const Outcome outcome = gallery("new", {offersWithMonthlyPrice("$9.99"), "--compare", path("old")});

    const Json change = dataOf("new")["changes"][0];
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.output, AllOf(HasSubstr("paywall: "),
                                      HasSubstr("\"Monthly, $9.99 per month\" instead of \"Monthly, $14.99 per "
                                                "month\" [page 1, en 320x568 large light, the first of 8 pictures]\n"),
                                      EndsWith("8 pictures, 8 changed, 0 new, 0 gone\n")));
    EXPECT_EQ(bytesOf(path("new/" + change["before"][file].get<std::string>())),
              bytesOf(path("old/" + pictures("old", "page 1")[0][file].get<std::string>())));
    EXPECT_NE(change["before"][digest], change["after"][digest]);
    for (const Column column : {file, tree})
        EXPECT_EQ(change["before"][column], "before/" + pictures("old", "page 1")[0][column].get<std::string>());
    EXPECT_EQ(change["before"][width], 320);
    EXPECT_EQ(change["before"][height], 568);
}

TEST_F(GalleryCommand, SaysWhichPicturesAreNewAndGone) {
    gallery("old");
    matrix["appearances"] = {"dark"};

    const Outcome outcome = gallery("new", {"--compare", path("old")});

    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, "paywall: is new [page 1, en 320x568 large dark, the first of 8 pictures]\n"
                              "paywall: is gone [page 1, en 320x568 large light, the first of 8 pictures]\n" +
                                  path("new") + "/index.html: 8 pictures, 0 changed, 8 new, 8 gone\n");
}

TEST_F(GalleryCommand, TellsOfPixelsThatNoTreeSpeaksOf) {
    const Json theme{{"colours", {{"velaBackground", {{"light", "#FFFBF5"}, {"dark", "#17100F"}}}}}};
    gallery("old");

    const Outcome outcome = gallery("new", {"--theme", folder.write("theme.json", theme).string(), "--compare", path("old")});

    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.output,
                StartsWith("paywall: looks different, the same tree [page 1, en 320x568 large light, the first of 8"));
    EXPECT_THAT(dataOf("new")["changes"][0]["words"], ElementsAre("looks different, the same tree", HasSubstr(" pixels within ")));
}

TEST_F(GalleryCommand, TakesWithItWhatIsNoLongerShown) {
    matrix["appearances"] = {"light", "dark"};
    gallery("out");
    folder.write("out/notes.txt", std::string("mine"));
    matrix["appearances"] = {"dark"};

    gallery("out/");

    const auto files = filesIn(path("out"));
    EXPECT_TRUE(files.contains("notes.txt"));
    for (const auto& [name, bytes] : files) EXPECT_THAT(name, Not(HasSubstr("-light-")));
    EXPECT_TRUE(files.contains(pictures("out", "page 1")[0][file].get<std::string>()));
}

TEST_F(GalleryCommand, WritesOverNothingButAGallery) {
    folder.write("mine/index.html", std::string("<p>My own page</p>"));
    folder.write("file", std::string("a file"));

    for (const char* out : {"mine", "file", "file/below"}) {
        const Outcome outcome = gallery(out);

        EXPECT_EQ(outcome.status, 2) << out;
        EXPECT_THAT(outcome.errorLines(), SizeIs(1)) << out;
        EXPECT_THAT(outcome.errors,
                    AllOf(StartsWith(path(out) + ": /: "), HasSubstr(", expected a folder to write a gallery into")));
        EXPECT_THAT(outcome.output, IsEmpty());
    }
    EXPECT_EQ(bytesOf(path("mine/index.html")), "<p>My own page</p>");
}

TEST_F(GalleryCommand, FollowsNoLink) {
    gallery("out");
    std::filesystem::remove_all(path("out/pictures"));
    std::filesystem::create_directory(path("elsewhere"));
    std::filesystem::create_directory_symlink(path("elsewhere"), path("out/pictures"));

    const Outcome outcome = gallery("out");

    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.errorLines(), SizeIs(1));
    EXPECT_THAT(filesIn(path("elsewhere")), IsEmpty());
}

TEST_F(GalleryCommand, WritesInPlaceOfALinkThatHasAPicturesName) {
    gallery("out");
    const std::string picture = path("out/" + pictures("out", "page 1")[0][file].get<std::string>());
    folder.write("precious", std::string("mine"));
    std::filesystem::remove(picture);
    std::filesystem::create_symlink(path("precious"), picture);

    gallery("out");

    EXPECT_EQ(bytesOf(path("precious")), "mine");
    EXPECT_THAT(bytesOf(picture), StartsWith("\x89PNG"));
}

TEST_F(GalleryCommand, RefusesWhatIsNoGalleryToCompareWith) {
    gallery("out");
    const std::string row = R"(["paywall","page 1","en","320x568","large","light","0","../secret","a.txt",1,1])";
    const std::string begin = "<script type=\"application/json\" id=\"gallery\">";
    folder.write("other/index.html", std::string("<p>My own page</p>"));
    folder.write("broken/index.html", begin + "{\"version\":1,</script>");
    folder.write("later/index.html", begin + R"({"version":2,"pictures":[]}</script>)");
    folder.write("outside/index.html", begin + R"({"version":1,"pictures":[)" + row + "]}</script>");

    for (const char* old : {"missing", "other", "broken", "later", "outside"}) {
        const Outcome outcome = gallery("new", {"--compare", path(old)});

        EXPECT_EQ(outcome.status, 2) << old;
        EXPECT_THAT(outcome.errorLines(), SizeIs(1)) << old;
        EXPECT_THAT(outcome.errors, AllOf(StartsWith(path(old)), HasSubstr(", expected the page of a gallery")));
        EXPECT_FALSE(std::filesystem::exists(path("new")));
    }
}

TEST_F(GalleryCommand, RefusesToWriteOverWhatItComparesWith) {
    gallery("out");

    const Outcome outcome = gallery("out", {"--compare", path("out")});

    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.errorLines(), ElementsAre(HasSubstr("expected another --out")));
}

TEST_F(GalleryCommand, RefusesAGalleryWhoseFilesAreGone) {
    gallery("old");
    std::filesystem::remove_all(path("old/pictures"));

    const Outcome outcome = gallery("new", {"--compare", path("old")});

    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.errorLines(), ElementsAre(StartsWith(path("old/pictures"))));
}

TEST_F(GalleryCommand, RefusesAnUnusableMatrixWithOneLine) {
    for (const Json& wrong : {Json{{"sizes", Json::array()}}, Json{{"screens", {"shop"}}}, Json{{"colours", {"red"}}},
                              Json{{"scale", 0}}, Json{{"sizes", {{20000, 20000}}}, {"scale", 8}}}) {
        matrix = wrong;

        const Outcome outcome = gallery("out");

        EXPECT_EQ(outcome.status, 2);
        EXPECT_THAT(outcome.output, IsEmpty());
        EXPECT_THAT(outcome.errorLines(), ElementsAre(HasSubstr("matrix.json: /")));
        EXPECT_FALSE(std::filesystem::exists(path("out")));
    }
}
