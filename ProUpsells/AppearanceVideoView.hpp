// A clip of the module that comes in two versions, for the light and for the dark appearance.
#pragma once

#include <string>

#include "Platform/Foundation/Coder.hpp"
#include "Platform/VelaUIKit/VideoView.hpp"

namespace proupsells {

// Plays by itself; empty while the clip's file is missing.
class AppearanceVideoView : public uikit::UIView {
public:
    const std::shared_ptr<velauikit::VideoView>& videoView() const { return m_videoView; }

    void traitCollectionDidChange(const uikit::UITraitCollection& previous) override;
    // The appearance is known for sure only when the view is in a window.
    void didMoveToWindow() override;

protected:
    AppearanceVideoView(std::string lightClip, std::string darkClip);
    // Both stop the program: there is no such view at a frame of its own, and none from an archive.
    [[noreturn]] AppearanceVideoView(const geometry::Rect& frame, std::string_view className);
    [[noreturn]] explicit AppearanceVideoView(const foundation::Coder& coder);

private:
    void chooseClip();

    std::string m_lightClip;
    std::string m_darkClip;
    std::shared_ptr<velauikit::VideoView> m_videoView;
};

} // namespace proupsells
