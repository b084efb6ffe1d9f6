#include "Platform/Host/RecordedContent.hpp"

#include <algorithm>
#include <utility>

#include "Platform/Commons/FatalError.hpp"
#include "Platform/Host/AssistiveOperation.hpp"
#include "Platform/RunLoop/MainRunLoop.hpp"

namespace proupsells::host {

using accessibility::ReadingElement;

RecordedContent::RecordedContent(std::shared_ptr<WindowContent> content)
    : m_self(std::make_shared<RecordedContent*>(this)), m_content(std::move(content)) {
    if (!m_content) commons::fatalError("A recorded content needs a content");
}

// --- Recording ---

void RecordedContent::record(Input input) {
    runloop::MainRunLoop::main().runDueTurns();
    recordWithoutTurns(std::move(input));
}

void RecordedContent::recordWithoutTurns(Input input) {
    if (m_isRecording) m_inputs.push_back({runloop::MainRunLoop::main().now_s(), std::move(input)});
}

// Looking runs nothing: whoever looks may be in the middle of something.
void RecordedContent::recordLook(Input look) {
    if (!m_isRecording) return;
    const runloop::MainRunLoop& loop = runloop::MainRunLoop::main();
    const auto due_s = loop.nextDueTime_s();
    m_inputs.push_back({loop.now_s(), std::move(look), due_s && *due_s <= loop.now_s()});
}

void RecordedContent::willDo(std::string json) { record(HostInput{std::move(json)}); }

void RecordedContent::end() {
    record(EndOfRecording{});
    m_isRecording = false;
}

// --- Input ---

void RecordedContent::setSize(geometry::Size size, geometry::PhysicalInsets safeArea) {
    record(SizeInput{size, safeArea});
    const auto content = m_content;
    content->setSize(size, safeArea);
}

void RecordedContent::touch(const Touch& touch) {
    runloop::MainRunLoop& loop = runloop::MainRunLoop::main();
    loop.runDueTurns();
    Touch handedOn = touch;
    handedOn.time_s = loop.now_s();
    recordWithoutTurns(handedOn);
    const auto content = m_content;
    content->touch(handedOn);
}

void RecordedContent::pointer(std::optional<geometry::Point> location) {
    record(PointerInput{location});
    const auto content = m_content;
    content->pointer(location);
}

void RecordedContent::scroll(geometry::Point location, geometry::Point delta) {
    record(ScrollInput{location, delta});
    const auto content = m_content;
    content->scroll(location, delta);
}

bool RecordedContent::key(Key key, bool isRepeated) {
    record(KeyInput{key, isRepeated});
    const auto content = m_content;
    return content->key(key, isRepeated);
}

void RecordedContent::setFocusLeaves(bool leaves) {
    record(FocusRule{leaves});
    const auto content = m_content;
    content->setFocusLeaves(leaves);
}

bool RecordedContent::takeFocus(FocusEnd end) {
    record(FocusInput{end});
    const auto content = m_content;
    return content->takeFocus(end);
}

void RecordedContent::dropFocus() {
    record(FocusInput{});
    const auto content = m_content;
    content->dropFocus();
}

void RecordedContent::setSeen(bool isSeen) {
    record(SightInput{isSeen});
    const auto content = m_content;
    content->setSeen(isSeen);
}

// --- Picture ---

// What the mouse rests on is found at once, so that it is found at the same moment when it is played back.
void RecordedContent::paint(graphics::DisplayList& list) {
    recordLook(FrameLook{});
    const auto content = m_content;
    const std::weak_ptr self = m_self;
    content->paint(list);
    const bool pointsAtControl = content->pointsAtControl();
    if (!self.expired()) m_pointsAtControl = pointsAtControl;
}

bool RecordedContent::isAnimating() const { return m_content->isAnimating(); }

void RecordedContent::setNeedsDisplayHandler(std::function<void()> handler) {
    m_content->setNeedsDisplayHandler(std::move(handler));
}

// --- Reading ---

accessibility::SemanticNode RecordedContent::semanticTree() {
    recordLook(ReadingLook{});
    const auto content = m_content;
    return content->semanticTree();
}

ReadingElement RecordedContent::reading() {
    recordLook(ReadingLook{});
    const auto content = m_content;
    ReadingElement reading = content->reading();
    recordActionsOf(reading);
    return reading;
}

void RecordedContent::recordActionsOf(ReadingElement& element) {
    for (ReadingElement& child : element.children) recordActionsOf(child);
    ReadingElement told = element;
    told.children.clear();
    const auto recorded = [self = std::weak_ptr(m_self),
                           told = std::make_shared<const ReadingElement>(std::move(told))](AssistiveAction action) {
        if (const auto held = self.lock()) (*held)->perform(*told, action);
    };
    if (element.activate) element.activate = [recorded] { recorded(AssistiveAction::activate); };
    if (element.adjust)
        element.adjust = [recorded](int step) { recorded(step < 0 ? AssistiveAction::decrease : AssistiveAction::increase); };
    if (element.reveal) element.reveal = [recorded] { recorded(AssistiveAction::reveal); };
    if (element.revealWhole) element.revealWhole = [recorded] { recorded(AssistiveAction::revealWhole); };
    if (element.focus) element.focus = [recorded] { recorded(AssistiveAction::focus); };
}

// On the screen as it stands now, where the element has a place that can be found again. One that is gone cannot be operated.
void RecordedContent::perform(const ReadingElement& told, AssistiveAction action) {
    runloop::MainRunLoop::main().runDueTurns();
    const auto content = m_content;
    const ReadingElement now = content->reading();
    const auto elements = accessibility::elementsOf(now);
    const auto found = std::find_if(elements.begin(), elements.end(), [&](const ReadingElement* element) {
        return element->id == told.id && element->role == told.role && element->identifier == told.identifier &&
               (told.id != 0 || element->name == told.name);
    });
    if (found == elements.end()) return recordWithoutTurns(ReadingLook{});
    recordWithoutTurns(AssistiveInput{std::size_t(found - elements.begin()), action});
    host::perform(**found, action);
}

} // namespace proupsells::host
