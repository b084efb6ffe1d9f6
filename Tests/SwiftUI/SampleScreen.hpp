// A screen as apps have them: a scrolled column of a picture, cards to choose from, a button and small print.
#pragma once

#include <array>
#include <string>

#include "Platform/SwiftUI/SwiftUI.hpp"

namespace proupsells::swiftui::tests {

inline constexpr graphics::Color ink{"ink", graphics::rgb(0x111111), graphics::rgb(0xEEEEEE)};
inline constexpr graphics::Color paper{"paper", graphics::rgb(0xFFFFFF), graphics::rgb(0x000000)};
inline constexpr graphics::Color accent{"accent", graphics::rgb(0x0088AA), graphics::rgb(0x00AACC)};
inline constexpr graphics::Font bodyFont{.size = 17, .name = "body"};
inline constexpr graphics::Font smallFont{.size = 11, .name = "small"};

struct SampleIndicator {
    bool isSelected = false;

    View body(BuildContext&) const {
        return ZStack{.content = {Circle().fill(paper) | opacity(isSelected ? 0 : 1),
                                  Circle().stroke(ink, isSelected ? 0 : 2) | opacity(isSelected ? 0 : 1),
                                  Circle().stroke(isSelected ? 2 : 0) | scaleEffect(isSelected ? 1 : 0.9),
                                  Circle().inset(3).fill() | opacity(isSelected ? 1 : 0)}} |
               frame(24, 24) | accessibilityLabel("Indicator");
    }
    bool operator==(const SampleIndicator&) const = default;
};

struct SampleCapsule {
    View body(BuildContext&) const {
        return Text{"7 Day Free Trial"} | font(smallFont) | padding(6) |
               background(Capsule(geometry::CornerStyle::continuous).fill(paper)) | foregroundStyle(accent);
    }
    bool operator==(const SampleCapsule&) const = default;
};

struct SampleCard {
    std::string title;
    std::string price;
    bool hasTrial = false;
    bool isSelected = false;
    Action action;

    View body(BuildContext&) const {
        const View titles = VStack{.alignment = HorizontalAlignment::leading,
                                   .content = {HStack{.content = {Text{title} | font(bodyFont) | foregroundStyle(ink),
                                                                  hasTrial ? View{SampleCapsule{}} : View{}}},
                                               Text{price} | font(smallFont) | foregroundStyle(ink)}};
        const View card = HStack{.content = {titles, Spacer{}, SampleIndicator{isSelected}}} | padding(Edge::horizontal, 14) |
                          padding(Edge::vertical, 16) |
                          frame({.maxWidth = geometry::infinity, .minHeight = 90, .alignment = Alignment::leading}) |
                          background(RoundedRectangle(6).fill(paper));
        return Button{.action = [this] { action(); }, .label = card} |
               overlay(RoundedRectangle(6, geometry::CornerStyle::continuous).stroke(2) | opacity(isSelected ? 1 : 0)) |
               overlay(hasTrial ? Text{"Best Value"} | font(smallFont) | foregroundStyle(paper) | padding(Edge::vertical, 2) |
                                      padding(Edge::horizontal, 4) | background(RoundedRectangle(2)) | padding() | fixedSize() |
                                      frame({.height = 1})
                                : View{},
                       Alignment::topTrailing) |
               accessibilityIdentifier(title);
    }
    bool operator==(const SampleCard&) const = default;
};

struct SamplePicker {
    Binding<int> selection;

    View body(BuildContext&) const {
        return VStack{.spacing = 16, .content = {ForEach(3, [this](int index) -> View {
                                         return SampleCard{.title = titles[std::size_t(index)],
                                                           .price = "$99.99 a year",
                                                           .hasTrial = index == 0,
                                                           .isSelected = selection.get() == index,
                                                           .action = [this, index] { selection.set(index); }};
                                     })}};
    }
    bool operator==(const SamplePicker&) const = default;

    static inline const std::array<std::string, 3> titles{"Yearly", "Monthly", "Weekly"};
};

struct SampleLink {
    std::string words;

    View body(BuildContext&) const {
        return Button{.action = [] {},
                      .label = HStack{.spacing = 2, .content = {Text{words} | font(smallFont) | foregroundStyle(ink)}}};
    }
    bool operator==(const SampleLink&) const = default;
};

struct SampleHeader {
    View body(BuildContext&) const {
        return ColorView{accent} |
               overlay(Text{"Endless premium templates"} | font(bodyFont) | foregroundStyle(paper), Alignment::bottomLeading) |
               frame({.maxWidth = geometry::infinity}) | frame({.height = 254}) | clipped();
    }
    bool operator==(const SampleHeader&) const = default;
};

struct SampleScreen {
    View body(BuildContext& context) const {
        const Binding<int> selection = context.state<int>(0);
        const bool isYearly = selection.get() == 0;
        return ZStack{.alignment = Alignment::topTrailing,
                      .content = {ScrollView{.content = column(selection, isYearly)},
                                  Button{.action = [] {}, .label = ColorView{ink} | frame(14, 14)} |
                                      padding(Edge::top | Edge::trailing, 18) | frame(44, 44) | accessibilityIdentifier("close")}} |
               foregroundStyle(accent);
    }
    bool operator==(const SampleScreen&) const = default;

private:
    static View column(const Binding<int>& selection, bool isYearly) {
        return VStack{.content = {SampleHeader{}, ColorView{ink} | frame(208, 26) | padding(Edge::top, 5),
                                  HStack{.content = {ColorView{ink} | frame(24, 24), Text{"Compare Plans"} | font(bodyFont),
                                                     Spacer{.minLength = 0},
                                                     ColorView{ink} | frame(10, 10) | padding(Edge::trailing, 16)}},
                                  SamplePicker{selection} | padding(Edge::horizontal),
                                  Button{.action = [] {},
                                         .label = Text{isYearly ? "Start Trial" : "Subscribe Now"} | font(bodyFont) |
                                                  frame({.maxWidth = geometry::infinity, .maxHeight = geometry::infinity})} |
                                      frame({.minHeight = 56, .idealHeight = 56, .maxHeight = 56}) | padding(Edge::horizontal) |
                                      padding(Edge::top, 12) | padding(Edge::bottom, -8) | accessibilityIdentifier("subscribe"),
                                  Text{isYearly ? disclaimers[0] : disclaimers[1]} | font(smallFont) | foregroundStyle(ink) |
                                      multilineTextAlignment(graphics::TextAlignment::center) | padding(Edge::vertical, 8) |
                                      padding(Edge::horizontal),
                                  HStack{.content = {SampleLink{"Terms"}, Spacer{}, SampleLink{"Privacy"}, Spacer{},
                                                     SampleLink{"Restore"}}} |
                                      padding(Edge::horizontal)}} |
               padding(Edge::bottom, 80);
    }
    static inline const std::array<std::string, 2> disclaimers{
        "First 7 days are free, then $99.99 for a year. Cancel any time before the trial ends and pay nothing at all.",
        "Payment will be made immediately. The plan renews every month until it is cancelled in the settings."};
};

} // namespace proupsells::swiftui::tests
