// A clip decoder without films: every file that is there plays made-up pictures.
#pragma once

#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "Platform/Host/ClipDecoder.hpp"

namespace proupsells::headless {

// Answers exactly for the time asked, at once. Counts what it is asked for. Files are named without their folders.
class FakeClipDecoder final : public host::ClipDecoder {
public:
    // What every file shows.
    struct Film {
        double duration_s = 4;
        double pictureDuration_s = 0.125;
        int width = 4; // pixels
        int height = 2;
    };

    FakeClipDecoder();
    explicit FakeClipDecoder(Film film);
    ~FakeClipDecoder() override;

    // From now on `fileName` cannot be played. That is logged once, however often it is opened.
    void breakFile(const std::string& fileName);
    // While held back, clips answer with the last picture they had, as on a real clock.
    void setHeldBack(bool isHeldBack) { m_shared->isHeldBack = isHeldBack; }
    std::shared_ptr<host::Clip> open(const std::filesystem::path& file) override;

    // The files that were opened, in order; one that is still open is not opened again.
    const std::vector<std::string>& openedFiles() const { return m_shared->openedFiles; }
    // The same, which are forgotten then.
    std::vector<std::string> takeOpenedFiles() { return std::exchange(m_shared->openedFiles, {}); }
    // How often a picture was asked for, by everybody.
    int questionCount() const { return m_shared->questionCount; }
    // How many pictures were made: asking for the same one again makes none.
    int decodedCount() const { return m_shared->decodedCount; }
    // The clips that somebody holds.
    int openCount() const { return m_shared->openCount; }

    // The number of a picture in its film, from 0 on.
    static int pictureNumber(const graphics::Bitmap& picture);

private:
    class FakeClip;
    struct Shared {
        std::vector<std::string> openedFiles;
        std::set<std::string> complainedOf;
        int questionCount = 0;
        int decodedCount = 0;
        int openCount = 0;
        bool isHeldBack = false;
    };

    Film m_film;
    std::set<std::string> m_brokenFiles;
    std::map<std::filesystem::path, std::weak_ptr<FakeClip>> m_clips;
    std::shared_ptr<Shared> m_shared; // with clips that outlive the decoder
};

} // namespace proupsells::headless
