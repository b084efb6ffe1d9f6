#include "Backends/Headless/FakeClipDecoder.hpp"

#include <cmath>
#include <utility>

#include "Platform/Commons/DefaultLogger.hpp"

namespace proupsells::headless {

class FakeClipDecoder::FakeClip final : public host::Clip {
public:
    FakeClip(Film film, bool isPlayable, std::string complaint, std::shared_ptr<Shared> shared)
        : m_film(film), m_isPlayable(isPlayable), m_complaint(std::move(complaint)), m_shared(std::move(shared)) {
        ++m_shared->openCount;
    }
    ~FakeClip() override { --m_shared->openCount; }

    host::ClipFrame frameAt(double time_s) override {
        ++m_shared->questionCount;
        if (!m_isPlayable) {
            if (const std::string complaint = std::exchange(m_complaint, {}); !complaint.empty())
                commons::DefaultLogger::shared().log(commons::DefaultLogger::errorSeverity, complaint, "ClipDecoder");
            return {};
        }
        constexpr double tolerance = 1e-9; // a moment that is due counts as due, whatever the rounding
        const double moment_s = std::fmod(std::max(0.0, time_s) + tolerance, m_film.duration_s);
        return {picture(int(moment_s / m_film.pictureDuration_s)),
                std::floor(moment_s / m_film.pictureDuration_s) * m_film.pictureDuration_s};
    }
    bool isPlayable() const override { return m_isPlayable; }

private:
    const std::shared_ptr<const graphics::Bitmap>& picture(int number) {
        if (m_picture && pictureNumber(*m_picture) == number) return m_picture;
        ++m_shared->decodedCount;
        auto made = std::make_shared<graphics::Bitmap>();
        made->width = m_film.width;
        made->height = m_film.height;
        made->pixels.assign(std::size_t(m_film.width * m_film.height), 0xFF000000u | std::uint32_t(number));
        m_picture = std::move(made);
        return m_picture;
    }

    Film m_film;
    bool m_isPlayable;
    std::string m_complaint;
    std::shared_ptr<Shared> m_shared;
    std::shared_ptr<const graphics::Bitmap> m_picture;
};

FakeClipDecoder::FakeClipDecoder() : FakeClipDecoder(Film{}) {}

FakeClipDecoder::FakeClipDecoder(Film film) : m_film(film), m_shared(std::make_shared<Shared>()) {}

FakeClipDecoder::~FakeClipDecoder() = default;

void FakeClipDecoder::breakFile(const std::string& fileName) { m_brokenFiles.insert(fileName); }

std::shared_ptr<host::Clip> FakeClipDecoder::open(const std::filesystem::path& file) {
    std::weak_ptr<FakeClip>& known = m_clips[file];
    if (auto clip = known.lock()) return clip;
    const std::string name = file.filename().string();
    m_shared->openedFiles.push_back(name);
    std::error_code error;
    const bool isThere = std::filesystem::exists(file, error), isBroken = m_brokenFiles.contains(name);
    auto clip =
        std::make_shared<FakeClip>(m_film, isThere && !isBroken, isBroken ? name + " cannot be played" : std::string{}, m_shared);
    known = clip;
    return clip;
}

int FakeClipDecoder::pictureNumber(const graphics::Bitmap& picture) { return int(picture.pixels.front() & 0xFFFFFFu); }

} // namespace proupsells::headless
