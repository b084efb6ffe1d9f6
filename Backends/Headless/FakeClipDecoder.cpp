#include "Backends/Headless/FakeClipDecoder.hpp"

#include <cmath>
#include <utility>

#include "Platform/Commons/DefaultLogger.hpp"
#include "Platform/System/Files.hpp"
#include "Platform/System/PathText.hpp"

namespace proupsells::headless {

class FakeClipDecoder::FakeClip final : public host::Clip {
public:
    // `brokenName` is empty for a file that is not logged.
    FakeClip(Film film, bool isPlayable, std::string brokenName, std::shared_ptr<Shared> shared)
        : m_film(film), m_isPlayable(isPlayable), m_brokenName(std::move(brokenName)), m_shared(std::move(shared)) {
        ++m_shared->openCount;
    }
    ~FakeClip() override { --m_shared->openCount; }

    host::ClipFrame frameAt(double time_s) override {
        ++m_shared->questionCount;
        if (!m_isPlayable) {
            complain();
            return {};
        }
        if (m_shared->isHeldBack) return m_lastFrame;
        constexpr double tolerance = 1e-9; // a moment that is due counts as due, whatever the rounding
        const double moment_s = std::fmod(std::max(0.0, time_s) + tolerance, m_film.duration_s);
        const double number = std::floor(moment_s / m_film.pictureDuration_s);
        return m_lastFrame = {picture(int(number)), number * m_film.pictureDuration_s};
    }
    bool isPlayable() const override { return m_isPlayable; }

private:
    void complain() {
        if (m_brokenName.empty() || !m_shared->complainedOf.insert(m_brokenName).second) return;
        commons::DefaultLogger::shared().log(commons::DefaultLogger::errorSeverity, m_brokenName + " cannot be played",
                                             "ClipDecoder");
    }

    std::shared_ptr<const graphics::Bitmap> picture(int number) {
        if (m_lastFrame.picture && pictureNumber(*m_lastFrame.picture) == number) return m_lastFrame.picture;
        ++m_shared->decodedCount;
        auto made = std::make_shared<graphics::Bitmap>();
        made->width = m_film.width;
        made->height = m_film.height;
        made->pixels.assign(std::size_t(m_film.width) * std::size_t(m_film.height), 0xFF000000u | std::uint32_t(number));
        return made;
    }

    Film m_film;
    bool m_isPlayable;
    std::string m_brokenName;
    std::shared_ptr<Shared> m_shared;
    host::ClipFrame m_lastFrame;
};

FakeClipDecoder::FakeClipDecoder() : FakeClipDecoder(Film{}) {}

FakeClipDecoder::FakeClipDecoder(Film film) : m_film(film), m_shared(std::make_shared<Shared>()) {}

FakeClipDecoder::~FakeClipDecoder() = default;

void FakeClipDecoder::breakFile(const std::string& fileName) { m_brokenFiles.insert(fileName); }

std::shared_ptr<host::Clip> FakeClipDecoder::open(const std::filesystem::path& file) {
    std::weak_ptr<FakeClip>& known = m_clips[file];
    if (auto clip = known.lock()) return clip;
    const std::string name = system::textOf(file.filename());
    m_shared->openedFiles.push_back(name);
    const bool isThere = system::isThere(file), isBroken = m_brokenFiles.contains(name);
    auto clip = std::make_shared<FakeClip>(m_film, isThere && !isBroken, isBroken ? name : std::string{}, m_shared);
    known = clip;
    return clip;
}

int FakeClipDecoder::pictureNumber(const graphics::Bitmap& picture) { return int(picture.pixels.front() & 0xFFFFFFu); }

} // namespace proupsells::headless
