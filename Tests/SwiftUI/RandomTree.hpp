// Trees of views made from bytes: what property tests and the fuzzer feed to the layout.
#pragma once

#include <cstdint>
#include <limits>
#include <span>
#include <string>
#include <vector>

#include "Platform/Graphics/DisplayList.hpp"
#include "Platform/SwiftUI/SwiftUI.hpp"

namespace proupsells::swiftui::tests {

// Reads decisions from bytes; when they run out, everything is 0.
class Decisions {
public:
    explicit Decisions(std::span<const std::uint8_t> bytes) : m_bytes(bytes) {}

    int below(int limit) { return limit > 0 ? int(next()) % limit : 0; }
    bool maybe() { return below(2) == 1; }
    // Mostly sensible lengths, and some that no view should be given.
    double length() {
        static constexpr double odd[] = {
            -20, 0, 0.1, 1e7, geometry::infinity, -geometry::infinity, std::numeric_limits<double>::quiet_NaN(), 1e-9};
        const int choice = below(16);
        return choice < 8 ? below(120) : choice < 14 ? below(256) / 3.0 : odd[below(8)];
    }
    std::optional<double> maybeLength() { return maybe() ? std::optional(length()) : std::nullopt; }
    // Of the bytes that were read.
    std::size_t count() const { return m_position; }

private:
    std::uint8_t next() { return m_position < m_bytes.size() ? m_bytes[m_position++] : 0; }

    std::span<const std::uint8_t> m_bytes;
    std::size_t m_position = 0;
};

// Whether two commands of different screens, each of which shapes its texts, paint the same.
inline bool paintTheSame(const graphics::DisplayList& a, graphics::Command inA, const graphics::DisplayList& b,
                         graphics::Command inB) {
    if (inA.kind == graphics::CommandKind::text && inB.kind == inA.kind) {
        if (a.texts[std::size_t(inA.resource)]->runs != b.texts[std::size_t(inB.resource)]->runs) return false;
        inA.kind = inB.kind = graphics::CommandKind::fillRectangle; // the rest is compared as for what has no resource
    }
    return graphics::paintsTheSame(a, inA, b, inB);
}

// Whether two lists paint the same, command by command.
inline bool paintTheSame(const graphics::DisplayList& a, const graphics::DisplayList& b) {
    if (a.commands.size() != b.commands.size()) return false;
    for (std::size_t index = 0; index < a.commands.size(); ++index)
        if (!paintTheSame(a, a.commands[index], b, b.commands[index])) return false;
    return true;
}

class RandomTree {
public:
    explicit RandomTree(std::span<const std::uint8_t> bytes) : m_decisions(bytes) {}

    View make() { return view(0); }
    // How many of the bytes count, once it is made.
    std::size_t usedByteCount() const { return m_decisions.count(); }

private:
    static constexpr int maximumDepth = 6;
    static constexpr int maximumViews = 80;

    View view(int depth) {
        View result = base(depth);
        for (int count = m_decisions.below(3); count > 0; --count) result = modified(result);
        return result;
    }

    View base(int depth) {
        if (++m_count > maximumViews || depth >= maximumDepth) return leaf();
        switch (m_decisions.below(9)) {
        case 0:
            return HStack{
                .alignment = VerticalAlignment(m_decisions.below(4)), .spacing = m_decisions.length(), .content = views(depth)};
        case 1:
            return VStack{
                .alignment = HorizontalAlignment(m_decisions.below(3)), .spacing = m_decisions.length(), .content = views(depth)};
        case 2: return HStack{.content = views(depth)};
        case 3: return VStack{.content = views(depth)};
        case 4: return ZStack{.alignment = alignment(), .content = views(depth)};
        case 5: return Group{.content = views(depth)};
        case 6: return ForEach(m_decisions.below(4), [&](int) { return view(depth + 1); });
        case 7: return FirstThatFits{.content = views(depth)} | keepsWordsWhole();
        default: return leaf();
        }
    }

    View leaf() {
        static constexpr const char* words[] = {"", "word", "two words", "a long text that wraps onto several lines\nand more",
                                                "\u05d0\u05d1\u05d2"};
        switch (m_decisions.below(7)) {
        case 0: return View{};
        case 1: return Text{words[m_decisions.below(5)]};
        case 2: return Spacer{.minLength = m_decisions.length()};
        case 3: return ColorView{graphics::Color::black};
        case 4: return Shape(Shape::Kind(m_decisions.below(5)), 6).stroke(m_decisions.length());
        case 5: return Circle().inset(m_decisions.length());
        default:
            return ColorView{graphics::Color::white} |
                   frame({.width = m_decisions.maybeLength(), .height = m_decisions.maybeLength()});
        }
    }

    View modified(const View& content) {
        switch (m_decisions.below(13)) {
        case 0: return padded(content);
        case 1: return content | frame(frameOptions());
        case 2: return fixed(content);
        case 3: return decorated(content, Layer::front);
        case 4: return decorated(content, Layer::back);
        case 5: return proportioned(content);
        case 6: return content | layoutPriority(m_decisions.below(3));
        case 7: return moved(content);
        case 8: return content | layoutDirection(geometry::LayoutDirection(m_decisions.below(2)));
        case 9: return content | ignoresSafeArea(Edge(m_decisions.below(16)));
        case 10: return faded(content | scaleEffect(m_decisions.below(5) / 2.0));
        case 11: return content | clipped();
        default: return content | clipShape(Shape(Shape::Kind(m_decisions.below(5)), 6));
        }
    }

    // One decision a statement: compilers differ in the order in which they make the arguments of a call.
    View padded(const View& content) {
        const Edge edges = Edge(m_decisions.below(16));
        return content | padding(edges, m_decisions.length());
    }
    View fixed(const View& content) {
        const bool isWidthFixed = m_decisions.maybe();
        return content | fixedSize(isWidthFixed, m_decisions.maybe());
    }
    enum class Layer { front, back };
    View decorated(const View& content, Layer layer) {
        const View other = leaf();
        const Alignment place = alignment();
        if (layer == Layer::front) return content | overlay(other, place);
        return content | background(other, place);
    }
    View proportioned(const View& content) {
        const double ratio = m_decisions.length();
        return content | aspectRatio(ratio, m_decisions.maybe() ? ContentMode::fit : ContentMode::fill);
    }
    View moved(const View& content) {
        const double x = m_decisions.length();
        return content | offset(x, m_decisions.length());
    }
    View faded(const View& content) { return content | opacity(m_decisions.below(3) / 2.0); }

    ViewList views(int depth) {
        std::vector<View> result;
        for (int count = m_decisions.below(5); count > 0; --count) result.push_back(view(depth + 1));
        return result;
    }
    Alignment alignment() { return {HorizontalAlignment(m_decisions.below(3)), VerticalAlignment(m_decisions.below(3))}; }
    FrameOptions frameOptions() {
        return {.minWidth = m_decisions.maybeLength(),
                .idealWidth = m_decisions.maybeLength(),
                .maxWidth = m_decisions.maybeLength(),
                .minHeight = m_decisions.maybeLength(),
                .idealHeight = m_decisions.maybeLength(),
                .maxHeight = m_decisions.maybeLength(),
                .alignment = alignment()};
    }

    Decisions m_decisions;
    int m_count = 0;
};

} // namespace proupsells::swiftui::tests
