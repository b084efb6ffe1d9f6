#include "Platform/VelaUIKit/ClipPlayback.hpp"

#include <utility>
#include <vector>

#include "Platform/Host/Services.hpp"
#include "Platform/RunLoop/MainRunLoop.hpp"

namespace proupsells::velauikit {

std::shared_ptr<ClipPlayback> ClipPlayback::of(const std::filesystem::path& file) {
    static std::vector<std::weak_ptr<ClipPlayback>> all;
    std::erase_if(all, [](const auto& playback) { return playback.expired(); });
    for (const auto& playback : all)
        if (auto shared = playback.lock(); shared->file() == file) return shared;
    auto begun = std::make_shared<ClipPlayback>(Creation{}, file);
    all.push_back(begun);
    return begun;
}

ClipPlayback::ClipPlayback(Creation, std::filesystem::path file)
    : m_file(std::move(file)), m_start_s(runloop::MainRunLoop::main().now_s()) {}

void ClipPlayback::open() {
    m_hasOpened = true;
    if (const auto decoder = host::Installation::current().clipDecoder) m_clip = decoder->open(m_file);
    m_isPlayable = m_clip != nullptr;
}

double ClipPlayback::time_s() const { return m_heldAt_s.value_or(runloop::MainRunLoop::main().now_s() - m_start_s); }

host::ClipFrame ClipPlayback::currentFrame() { return frameAt(time_s()); }

std::shared_ptr<void> ClipPlayback::held() {
    if (auto hold = m_hold.lock()) return hold;
    m_heldAt_s = time_s();
    const auto goOn = [playback = weak_from_this()](void*) {
        const auto self = playback.lock();
        if (!self || !runloop::MainRunLoop::exists()) return;
        self->m_start_s = runloop::MainRunLoop::main().now_s() - *self->m_heldAt_s;
        self->m_heldAt_s.reset();
    };
    const std::shared_ptr<void> hold(this, goOn);
    m_hold = hold;
    return hold;
}

host::ClipFrame ClipPlayback::frameAt(double time_s) {
    if (!m_hasOpened) open();
    if (!m_clip) return {};
    host::ClipFrame frame = m_clip->frameAt(time_s);
    m_isPlayable = m_clip->isPlayable();
    return frame;
}

} // namespace proupsells::velauikit
