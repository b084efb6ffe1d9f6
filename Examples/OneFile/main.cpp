// Takes pictures of the screens, without a window, and prints their texts. The program is one file: pictures, faces and clips are
// in it.
//
// usage: OneFileExample PICTURES [RESOURCES]     RESOURCES: a folder to be asked before the program itself

#include <ProUpsells/FFmpeg.hpp>
#include <ProUpsells/Headless.hpp>
#include <ProUpsells/Raster.hpp>
#include <fstream>
#include <iostream>
#include <vector>

#include "Shop/Shop.hpp"

using namespace proupsells;

namespace {

constexpr int width = 375, height = 800, scale = 2;

// As a portable pixmap.
void write(const std::filesystem::path& file, const std::vector<unsigned char>& rgba) {
    std::ofstream stream(file, std::ios::binary);
    stream << "P6 " << width * scale << " " << height * scale << " 255\n";
    for (std::size_t pixel = 0; pixel < rgba.size(); pixel += 4) stream.write(reinterpret_cast<const char*>(&rgba[pixel]), 3);
}

void printTexts(const accessibility::SemanticNode& node) {
    if (node.text) std::cout << node.text->text << "\n";
    for (const auto& child : node.children) printTexts(child);
}

void show(const std::shared_ptr<uikit::UIViewController>& screen, headless::TestBed& bed, const std::filesystem::path& picture) {
    const auto window = uikit::UIWindow::create();
    window->setRootViewController(screen);
    rasterbackend::PixelView view(window);
    view.setSize({width, height});
    bed.runFor(1);
    std::vector<unsigned char> rgba(std::size_t(4 * width * scale * height * scale));
    view.paint({rgba.data(), width * scale, height * scale, 4 * width * scale, rasterbackend::PixelFormat::rgba}, scale);
    write(picture, rgba);
    printTexts(window->semanticTree());
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) return 2;
    const std::filesystem::path pictures = argv[1];
    if (argc > 2) foundation::setResourceRoot(argv[2]);
    using ffmpegbackend::LazyClipDecoder;
    host::Services services;
    services.textShaper = std::make_shared<rasterbackend::RasterTextShaper>();
    services.imageDecoder = std::make_shared<rasterbackend::RasterImageDecoder>();
    services.clipDecoder = std::make_shared<LazyClipDecoder>(ffmpegbackend::Pace::exact, LazyClipDecoder::defaultFolders());
    headless::TestBed bed(services);

    const auto purchases = std::make_shared<shop::Purchases>();
    show(shop::newPaywall(purchases), bed, pictures / "paywall.ppm");
    show(VelaProStorePageViewController::create({}, Referrer{"Home", 5}, Entitlement::velaPRO), bed, pictures / "store.ppm");
    return 0;
}
