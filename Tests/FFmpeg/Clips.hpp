// Clips for tests, whole and damaged, and what is seen of them.
#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <thread>

#include <gmock/gmock.h>

#include "Backends/FFmpeg/LazyClipDecoder.hpp"
#include "Tests/Support/LogRecorder.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

namespace proupsells::tests {

// Twenty pictures, ten a second; the picture of number n has the luminance 16 + 10 n.
inline const std::filesystem::path counting = "Tests/FFmpeg/Data/counting.mp4";
// The same with its index before its pictures, as films for the web have it, so that its beginning can be played alone.
inline const std::filesystem::path countingIndexFirst = "Tests/FFmpeg/Data/counting-index-first.mp4";

// The number of the counting clip's picture, read back from its brightness; -1 for none.
inline int numberOf(const host::ClipFrame& frame) {
    if (!frame.picture) return -1;
    const double brightness = frame.picture->pixels[frame.picture->pixels.size() / 2] & 0xFF;
    return static_cast<int>(brightness * 219 / 255 / 10 + 0.5);
}

// Lets the decoder's threads work until the condition holds. False when it does not hold within a minute.
inline bool waitUntil(const std::function<bool()>& condition) {
    const auto limit = std::chrono::steady_clock::now() + std::chrono::minutes(1);
    while (!condition()) {
        if (std::chrono::steady_clock::now() > limit) return false;
        std::this_thread::yield();
    }
    return true;
}

class ClipTest : public testing::Test {
protected:
    static ffmpegbackend::LazyClipDecoder decoderAt(ffmpegbackend::Pace pace) {
        return {pace, ffmpegbackend::LazyClipDecoder::defaultFolders()};
    }
    static ffmpegbackend::LazyClipDecoder exactDecoder() { return decoderAt(ffmpegbackend::Pace::exact); }

    std::filesystem::path fileWith(const std::string& bytes, const std::string& name = "clip.mp4") const {
        return folder.write(name, bytes);
    }
    std::vector<std::string> complaints() const { return log.messages(); }

    TemporaryFolder folder;
    LogRecorder log;
};

} // namespace proupsells::tests
