#include "Apps/ProUpsellsHost/GalleryPainter.hpp"

#include <map>
#include <set>

#include <nlohmann/json.hpp>

#include "Apps/ProUpsellsHost/GalleryTour.hpp"
#include "Apps/ProUpsellsHost/ParallelAnswers.hpp"
#include "Apps/ProUpsellsHost/PictureDigest.hpp"
#include "Apps/ProUpsellsHost/ProgressBar.hpp"
#include "Backends/Raster/PngFile.hpp"
#include "Backends/Raster/RasterSurface.hpp"
#include "Tooling/ScreenTree.hpp"
#include "Tooling/WrittenNumber.hpp"

namespace proupsells::hostprogram {

using graphics::ColorScheme;
using graphics::ContentSizeCategory;
using tooling::GalleryPicture;

namespace {

// As in file names; short, and the same whatever the file system makes of case and of other characters.
std::string plain(const std::string& text) {
    constexpr std::size_t longest = 60;
    std::string result;
    for (const char c : text.substr(0, longest)) {
        const char lower = c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c;
        const bool isPlain = (lower >= 'a' && lower <= 'z') || (lower >= '0' && lower <= '9') || lower == '.';
        result += isPlain ? lower : '-';
    }
    return result;
}

std::string sizeWord(geometry::Size size) { return tooling::written(size.width) + "x" + tooling::written(size.height); }

// One screen on one device, at all of its moments.
class ConfigurationPainter {
public:
    ConfigurationPainter(StartScreen screen, const Offers& offers, const Device& device, const GalleryFolder& folder)
        : m_device(device), m_folder(folder), m_tour(screen, offers, device), m_screen(wordFor(screen, startScreens)),
          m_appearance(device.appearance == ColorScheme::dark ? "dark" : "light") {}

    std::vector<GalleryPicture> paint() {
        m_tour.run([this](const std::string& moment, uikit::UIWindow& window) { paint(moment, window); });
        return std::move(m_pictures);
    }

private:
    void paint(const std::string& moment, uikit::UIWindow& window) {
        GalleryPicture picture{.screen = m_screen,
                               .moment = moment,
                               .locale = m_device.locale,
                               .size = sizeWord(m_device.size),
                               .textSize = std::string(textSizeWord(m_device.textSize)),
                               .appearance = m_appearance,
                               .digest = {},
                               .file = {},
                               .tree = {}};
        graphics::DisplayList list;
        window.paint(list);
        m_surface.present(list, m_device.size, m_device.scale);
        picture.width = m_surface.picture().width();
        picture.height = m_surface.picture().height();
        picture.digest = digestOf(m_surface.picture());

        const std::string name = nameFor(picture);
        const auto [file, isNewPicture] = m_files.try_emplace(picture.digest, name + ".png");
        if (isNewPicture)
            m_folder.write(file->second, rasterbackend::pngBytes(m_surface.picture(), rasterbackend::PngEffort::quick));
        picture.file = file->second;

        const std::string text = tooling::screenText(tooling::screenTree(window.semanticTree()));
        const auto [tree, isNewTree] = m_trees.try_emplace(text, name + ".txt");
        if (isNewTree) m_folder.write(tree->second, text);
        picture.tree = tree->second;
        m_pictures.push_back(std::move(picture));
    }

    std::string nameFor(const GalleryPicture& picture) {
        const std::string name = "pictures/" + picture.locale + "/" + picture.screen + "-" + picture.size + "-" +
                                 plain(picture.textSize) + "-" + picture.appearance + "-" + plain(picture.moment);
        std::string result = name;
        for (int number = 2; !m_names.insert(result).second; ++number) result = name + "-" + std::to_string(number);
        return result;
    }

    Device m_device;
    const GalleryFolder& m_folder;
    GalleryTour m_tour;
    std::string m_screen;
    std::string m_appearance;
    rasterbackend::RasterSurface m_surface;
    std::vector<GalleryPicture> m_pictures;
    std::map<std::string, std::string> m_files; // by digest
    std::map<std::string, std::string> m_trees; // by text
    std::set<std::string> m_names;
};

struct Task {
    StartScreen screen;
    std::string locale;
    geometry::Size size;
    ContentSizeCategory textSize;

    // What it costs, in points of screens without any.
    double weight() const {
        constexpr double withoutPixels = 200'000;
        return withoutPixels + size.width * size.height;
    }
};

std::vector<Task> tasksOf(const AuditMatrix& matrix) {
    std::vector<Task> tasks;
    for (const StartScreen screen : matrix.screens)
        for (const std::string& locale : matrix.locales)
            for (const geometry::Size size : matrix.sizes)
                for (const ContentSizeCategory textSize : matrix.textSizes) tasks.push_back({screen, locale, size, textSize});
    return tasks;
}

Json rowOf(const GalleryPicture& picture) {
    return {picture.screen, picture.moment, picture.locale, picture.size,  picture.textSize, picture.appearance,
            picture.digest, picture.file,   picture.tree,   picture.width, picture.height};
}

GalleryPicture pictureOf(const Json& row) {
    return {row[0], row[1], row[2], row[3], row[4], row[5], row[6], row[7], row[8], row[9], row[10]};
}

// What was painted.
Json perform(const Task& task, const GallerySubject& subject, const GalleryFolder& folder) {
    Device device = subject.device;
    device.locale = task.locale;
    device.size = task.size;
    device.textSize = task.textSize;
    device.scale = subject.matrix.scale;
    Json rows = Json::array();
    for (const ColorScheme appearance : subject.matrix.configurations.appearances) {
        device.appearance = appearance;
        for (const GalleryPicture& picture : ConfigurationPainter(task.screen, subject.offers, device, folder).paint())
            rows.push_back(rowOf(picture));
    }
    return rows;
}

} // namespace

std::vector<GalleryPicture> paintGallery(const GallerySubject& subject, const GalleryFolder& folder) {
    const std::vector<Task> tasks = tasksOf(subject.matrix.configurations);
    double total = 0;
    for (const Task& task : tasks) total += task.weight();
    std::vector<Json> answers;
    {
        ProgressBar progress(total);
        answers = parallelAnswers(
            tasks.size(), [&](std::size_t i) { return perform(tasks[i], subject, folder); },
            [&](std::size_t i) { progress.advance(tasks[i].weight()); });
    }
    std::vector<GalleryPicture> pictures;
    for (const Json& rows : answers)
        for (const Json& row : rows) pictures.push_back(pictureOf(row));
    return pictures;
}

} // namespace proupsells::hostprogram
