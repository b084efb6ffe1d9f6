#include "Platform/Host/InputPlayer.hpp"

#include "Platform/Host/AssistiveOperation.hpp"
#include "Platform/RunLoop/MainRunLoop.hpp"

namespace proupsells::host {

void InputPlayer::play(const RecordedInput& recorded) {
    if (!recorded.isEarly || m_loop.now_s() < recorded.time_s) m_loop.runUntil(recorded.time_s);
    std::visit([this](const auto& input) { perform(input); }, recorded.input);
}

void InputPlayer::perform(const Touch& touch) {
    Touch now = touch;
    now.time_s = m_loop.now_s();
    m_content.touch(now);
}

void InputPlayer::perform(const SizeInput& input) { m_content.setSize(input.size, input.safeArea); }

void InputPlayer::perform(const PointerInput& input) { m_content.pointer(input.location); }

void InputPlayer::perform(const ScrollInput& input) { m_content.scroll(input.location, input.delta); }

void InputPlayer::perform(const KeyInput& input) { m_content.key(input.key, input.isRepeated); }

void InputPlayer::perform(const FocusRule& input) { m_content.setFocusLeaves(input.leaves); }

void InputPlayer::perform(const FocusInput& input) {
    if (input.end)
        m_content.takeFocus(*input.end);
    else
        m_content.dropFocus();
}

void InputPlayer::perform(const SightInput& input) { m_content.setSeen(input.isSeen); }

void InputPlayer::perform(const AssistiveInput& input) {
    const accessibility::ReadingElement reading = m_content.reading();
    const auto elements = accessibility::elementsOf(reading);
    if (input.element < elements.size()) host::perform(*elements[input.element], input.action);
}

void InputPlayer::perform(const FrameLook&) {
    m_content.paint(m_frame);
    m_content.pointsAtControl();
}

void InputPlayer::perform(const ReadingLook&) { m_content.reading(); }

} // namespace proupsells::host
