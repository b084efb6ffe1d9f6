#include "ProUpsells/AppearanceVideoView.hpp"

#include <utility>

#include "Platform/VelaUIKit/Theme.hpp"
#include "ProUpsells/ResourceBundleClass.hpp"
#include "ProUpsells/UnsupportedInitializer.hpp"

namespace proupsells {

AppearanceVideoView::AppearanceVideoView(std::string lightClip, std::string darkClip)
    : m_lightClip(std::move(lightClip)), m_darkClip(std::move(darkClip)), m_videoView(std::make_shared<velauikit::VideoView>()) {
    addSubview(m_videoView);
    m_videoView->fillSuperview();
    m_videoView->play();
    chooseClip();
}

AppearanceVideoView::AppearanceVideoView(const geometry::Rect&, std::string_view className) {
    stopAtUnimplementedInitializer("init(frame:)", className);
}

AppearanceVideoView::AppearanceVideoView(const foundation::Coder&) { stopAtInitializerFromArchive(); }

void AppearanceVideoView::traitCollectionDidChange(const uikit::UITraitCollection&) { chooseClip(); }

void AppearanceVideoView::didMoveToWindow() {
    if (window()) chooseClip();
}

void AppearanceVideoView::chooseClip() {
    const bool isLight = velauikit::theme(traitCollection()) == velauikit::Theme::light;
    m_videoView->setFile(ResourceBundleClass::bundle().pathForResource(isLight ? m_lightClip : m_darkClip, "mp4"));
}

} // namespace proupsells
