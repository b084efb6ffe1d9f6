// Writes down what goes into a content.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "Platform/Host/RecordedInput.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::host {

// Stands before a content and hands everything on to it. Nothing is recorded but where a host puts one there, and nothing leaves
// the process.
//
//     runloop::MainRunLoop loop(std::make_shared<runloop::SteppedClock>());
//     const auto recorded = std::make_shared<host::RecordedContent>(window);
//     qtbackend::QtWindow shown(recorded, {.size = {375, 800}});
//     …
//     write(host::inputsAsJson(recorded->inputs()));
//
// On a runloop::SteppedClock, playing the inputs back on a virtual clock does the same at the same times, to the last bit, where
// whoever shows the content runs what is due before each frame. On another clock turns are late by what it takes to run them. What
// comes while a turn of the loop runs is played back right after it.
//
// Runs what is due before it hands an input on. Of a reading's elements the operations are recorded, of semanticTree() none.
class PROUPSELLS_EXPORT RecordedContent final : public WindowContent {
public:
    // Shares the content, which must not be null.
    explicit RecordedContent(std::shared_ptr<WindowContent> content);

    // In the order in which they came.
    const std::vector<RecordedInput>& inputs() const { return m_inputs; }
    // Tells what the host is about to do, as in HostInput. What is due runs first.
    void willDo(std::string json);
    // What is due runs, and no more is recorded.
    void end();

    void setSize(geometry::Size size, geometry::PhysicalInsets safeArea) override;
    void touch(const Touch& touch) override;
    void pointer(std::optional<geometry::Point> location) override;
    // As it was at the last frame.
    bool pointsAtControl() override { return m_pointsAtControl; }
    void scroll(geometry::Point location, geometry::Point delta) override;
    bool key(Key key, bool isRepeated = false) override;
    void setFocusLeaves(bool leaves) override;
    bool takeFocus(FocusEnd end) override;
    void dropFocus() override;
    void setSeen(bool isSeen) override;
    void paint(graphics::DisplayList& list) override;
    bool isAnimating() const override;
    void setNeedsDisplayHandler(std::function<void()> handler) override;
    accessibility::SemanticNode semanticTree() override;
    accessibility::ReadingElement reading() override;

private:
    void record(Input input);
    void recordWithoutTurns(Input input);
    void recordLook(Input look);
    void recordActionsOf(accessibility::ReadingElement& element);
    void perform(const accessibility::ReadingElement& told, AssistiveAction action);

    std::shared_ptr<RecordedContent*> m_self; // for operations of elements, which may outlive this
    std::shared_ptr<WindowContent> m_content;
    std::vector<RecordedInput> m_inputs;
    bool m_isRecording = true;
    bool m_pointsAtControl = false;
};

} // namespace proupsells::host
