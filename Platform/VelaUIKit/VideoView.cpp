#include "Platform/VelaUIKit/VideoView.hpp"

#include <algorithm>
#include <utility>

#include "Platform/Motion/TimingCurve.hpp"
#include "Platform/RunLoop/MainRunLoop.hpp"
#include "Platform/System/PathText.hpp"
#include "Platform/UIKit/Controllers/UIWindow.hpp"

namespace proupsells::velauikit {

VideoView::VideoView() { setUserInteractionEnabled(false); }

void VideoView::setFile(std::optional<std::filesystem::path> file) {
    if (m_file == file) return;
    m_file = std::move(file);
    updatePlayback();
}

void VideoView::play() {
    if (std::exchange(m_isPlaying, true)) return;
    updatePlayback();
}

void VideoView::updatePlayback() {
    m_hold.reset();
    m_wasSeenEmpty = false;
    m_fadeStart_s.reset();
    m_playback = m_isPlaying && m_file ? ClipPlayback::of(*m_file) : nullptr;
    setNeedsDisplay();
}

host::ClipFrame VideoView::dueFrame() const { return standsStill() ? m_playback->firstFrame() : m_playback->currentFrame(); }

bool VideoView::isAnimating() const {
    if (UIView::isAnimating()) return true;
    if (!m_playback || !m_playback->isPlayable() || !window() || m_lastPaint != window()->paintCount()) return false;
    if (fadeProgress() < 1) return true;
    if (m_hold && m_showsPicture) return false;
    // On a real clock the first picture may come some frames late.
    return !standsStill() || !m_showsFirstPicture;
}

double VideoView::fadeProgress() const {
    constexpr motion::Animation fade{motion::TimingCurve::easeOut(), 0.15, 0};
    return m_fadeStart_s ? fade.progressAt(runloop::MainRunLoop::main().now_s() - *m_fadeStart_s) : 1;
}

geometry::Rect VideoView::pictureFrame(const graphics::Bitmap& picture) const {
    const geometry::Rect all = bounds();
    const double wide = all.width() / picture.width, high = all.height() / picture.height;
    const double scale = clipsToBounds() ? std::max(wide, high) : std::min(wide, high);
    const geometry::Size size{picture.width * scale, picture.height * scale};
    return {{all.midX() - size.width / 2, all.midY() - size.height / 2}, size};
}

void VideoView::draw(graphics::PaintContext& context, const graphics::PaintState& state) const {
    if (!m_playback || state.hides(bounds())) return;
    if (window()) m_lastPaint = window()->paintCount();
    m_hold = isAttended() ? m_playback->held() : nullptr;
    const host::ClipFrame frame = dueFrame();
    m_showsPicture = frame.picture != nullptr;
    m_showsFirstPicture = frame.picture && frame.time_s == 0;
    if (!m_showsPicture) m_wasSeenEmpty = true;
    if (m_showsPicture && std::exchange(m_wasSeenEmpty, false)) m_fadeStart_s = runloop::MainRunLoop::main().now_s();
    if (frame.picture && frame.picture->width > 0 && frame.picture->height > 0)
        context.bitmap(state.fadedBy(fadeProgress()), pictureFrame(*frame.picture), frame.picture);
}

void VideoView::describe(accessibility::SemanticNode& node, const graphics::PaintState&) const {
    if (!m_file) return;
    node.clipView = accessibility::ClipInfo{system::textOf(m_file->stem()), {}};
    if (!m_playback || !node.isOnScreen) return;
    if (const host::ClipFrame frame = dueFrame(); frame.picture) node.clipView->time_s = frame.time_s;
}

} // namespace proupsells::velauikit
