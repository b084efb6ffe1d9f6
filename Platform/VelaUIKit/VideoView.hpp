// A clip that plays over and over, without sound.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>

#include "Platform/UIKit/Views/UIView.hpp"
#include "Platform/VelaUIKit/ClipPlayback.hpp"

namespace proupsells::velauikit {

// Shows nothing without a file, with a missing one or with one that cannot be played, and until it is told to play. Costs nothing
// while it is not painted. The picture keeps its shape and fits in; it fills the view, cut at the edges, when the view clips to its
// bounds. A first picture that comes after the view was seen without one fades in. Without a natural size. For somebody who wants
// less motion it stands still at its first picture.
class VideoView : public uikit::UIView {
public:
    VideoView();
    std::string_view typeName() const override { return "VideoView"; }

    const std::optional<std::filesystem::path>& file() const { return m_file; }
    void setFile(std::optional<std::filesystem::path> file);
    // Plays from now on, this file and those that follow it.
    void play();

    // While it is on the screen and something plays.
    bool isAnimating() const override;

protected:
    void draw(graphics::PaintContext& context, const graphics::PaintState& state) const override;
    void describe(accessibility::SemanticNode& node, const graphics::PaintState& state) const override;

private:
    void updatePlayback();
    bool standsStill() const { return traitCollection().reduceMotion; }
    host::ClipFrame dueFrame() const;
    double fadeProgress() const;
    geometry::Rect pictureFrame(const graphics::Bitmap& picture) const;

    std::optional<std::filesystem::path> m_file;
    bool m_isPlaying = false;
    std::shared_ptr<ClipPlayback> m_playback;         // null while nothing plays
    mutable std::optional<std::uint64_t> m_lastPaint; // the window's count when this view was painted last
    mutable std::shared_ptr<void> m_hold;             // while a person rests on the view, as painted last
    mutable bool m_showsPicture = false;              // likewise
    mutable bool m_showsFirstPicture = false;
    mutable bool m_wasSeenEmpty = false;         // since playback began, and no picture came yet
    mutable std::optional<double> m_fadeStart_s; // of a first picture that came late
};

} // namespace proupsells::velauikit
