// Does again what was recorded.
#pragma once

#include "Platform/Host/RecordedInput.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::runloop {
class MainRunLoop;
}

namespace proupsells::host {

// Does to a content what was done to the recorded one.
class PROUPSELLS_EXPORT InputPlayer {
public:
    // Both must live longer. The loop must run on a virtual clock, and stand no later than what is played.
    InputPlayer(WindowContent& content, runloop::MainRunLoop& loop) : m_content(content), m_loop(loop) {}

    // Lets the time come and does what was done then, except for a HostInput, which is the host's to do when this returns.
    void play(const RecordedInput& recorded);
    // What the content has shown at the last frame.
    const graphics::DisplayList& frame() const { return m_frame; }

private:
    void perform(const Touch&);
    void perform(const SizeInput&);
    void perform(const PointerInput&);
    void perform(const ScrollInput&);
    void perform(const KeyInput&);
    void perform(const FocusRule&);
    void perform(const FocusInput&);
    void perform(const SightInput&);
    void perform(const AssistiveInput&);
    void perform(const FrameLook&);
    void perform(const ReadingLook&);
    void perform(const HostInput&) {}
    void perform(const EndOfRecording&) {}

    WindowContent& m_content;
    runloop::MainRunLoop& m_loop;
    graphics::DisplayList m_frame;
};

} // namespace proupsells::host
