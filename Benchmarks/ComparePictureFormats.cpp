// What pictures cost in several formats. Draws every vector file of the resources at 1, 2 and 3 pixels a point, and prints for each
// format the size of all of them, and the time and the memory that the header picture takes at scale 2. Takes some minutes; to be
// run from the root of the sources.
#include <sys/resource.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <map>

#include "Benchmarks/PictureFormats.hpp"
#include "Platform/System/MappedFile.hpp"
#include "Tests/Support/CpuTime.hpp"
#include "Tests/Support/TemporaryFolder.hpp"
#include "Tools/MakePictures/VectorFile.hpp"

using namespace proupsells;

namespace {

using benchmarks::PictureFormat;
using rasterbackend::Picture;
using system::MappedFile;

constexpr const char* folders[] = {"ProUpsells/Resources/Images", "Platform/VelaUIKit/Resources/Images"};
constexpr std::string_view header = "paywallHeaderA.svg";
constexpr int headerScale = 2;
constexpr int runCount = 101;

Picture drawn(const std::filesystem::path& file, geometry::Size size, int scale) {
    const QImage image =
        makepictures::renderVector(file, {int(std::lround(size.width * scale)), int(std::lround(size.height * scale))});
    Picture picture(image.width(), image.height());
    std::memcpy(picture.row(0), image.constBits(), picture.byteCount());
    return picture;
}

bool isSame(const Picture& a, const Picture& b) {
    return !b.isNull() && a.byteCount() == b.byteCount() && std::memcmp(a.row(0), b.row(0), a.byteCount()) == 0;
}

double medianTime_ms(const PictureFormat& format, const std::filesystem::path& file, const Picture& picture) {
    std::vector<double> times;
    for (int run = 0; run < runCount; ++run) {
        const double begin = tests::cpuTime_s();
        const MappedFile mapped(file);
        const Picture read = format.decoded(mapped.bytes(), picture.width(), picture.height());
        times.push_back((tests::cpuTime_s() - begin) * 1000);
        if (run == 0 && !isSame(picture, read)) std::printf("%s: not the same pixels\n", std::string(format.name).c_str());
    }
    std::nth_element(times.begin(), times.begin() + runCount / 2, times.end());
    return times[runCount / 2];
}

long peak_KB() {
    rusage usage = {};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

// In a process of its own, whose memory nobody has used before.
int printMemory(std::string_view name, const std::filesystem::path& file, int width, int height) {
    for (const PictureFormat& format : benchmarks::pictureFormats()) {
        if (format.name != name) continue;
        const long before_KB = peak_KB();
        const MappedFile mapped(file);
        const Picture picture = format.decoded(mapped.bytes(), width, height);
        std::printf("%ld\n", picture.isNull() ? -1 : peak_KB() - before_KB);
    }
    return 0;
}

long memory_KB(const std::string& program, const PictureFormat& format, const std::filesystem::path& file, const Picture& picture) {
    const std::string command = "'" + program + "' '" + std::string(format.name) + "' '" + file.string() + "' " +
                                std::to_string(picture.width()) + " " + std::to_string(picture.height());
    std::FILE* const pipe = popen(command.c_str(), "r");
    long memory = -1;
    if (pipe && std::fscanf(pipe, "%ld", &memory) != 1) memory = -1;
    if (pipe) pclose(pipe);
    return memory;
}

int compare(const std::string& program) {
    std::map<std::string_view, std::size_t> byteCounts;
    Picture headerPicture;
    std::size_t rawByteCount = 0;
    for (const char* folder : folders)
        for (const auto& entry : std::filesystem::directory_iterator(folder)) {
            const auto size = makepictures::vectorSize(entry.path());
            for (int scale = 1; size && scale <= 3; ++scale) {
                const Picture picture = drawn(entry.path(), *size, scale);
                if (entry.path().filename() == header && scale == headerScale) headerPicture = picture;
                for (const PictureFormat& format : benchmarks::pictureFormats())
                    byteCounts[format.name] += format.encoded(picture).size();
                rawByteCount += picture.byteCount();
            }
        }
    if (headerPicture.isNull()) {
        std::fputs("Run this from the root of the sources.\n", stderr);
        return 1;
    }

    const tests::TemporaryFolder folder;
    std::printf("%s at scale %d: %d x %d pixels, %.1f MB; all pictures at scales 1, 2, 3: %.1f MB of pixels\n", header.data(),
                headerScale, headerPicture.width(), headerPicture.height(), double(headerPicture.byteCount()) / 1e6,
                double(rawByteCount) / 1e6);
    std::printf("%-28s %10s %12s %12s %12s\n", "format", "time (ms)", "file (KB)", "memory (KB)", "all (MB)");
    for (const PictureFormat& format : benchmarks::pictureFormats()) {
        const std::string bytes = format.encoded(headerPicture);
        const auto file = folder.write("picture", bytes);
        std::printf("%-28s %10.2f %12.0f %12ld %12.2f\n", std::string(format.name).c_str(),
                    medianTime_ms(format, file, headerPicture), double(bytes.size()) / 1e3,
                    memory_KB(program, format, file, headerPicture), double(byteCounts[format.name]) / 1e6);
    }
    return 0;
}

} // namespace

int main(int count, char** arguments) {
    if (count == 5) return printMemory(arguments[1], arguments[2], std::atoi(arguments[3]), std::atoi(arguments[4]));
    return compare(arguments[0]);
}
