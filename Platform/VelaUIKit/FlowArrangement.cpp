#include "Platform/VelaUIKit/FlowArrangement.hpp"

#include <algorithm>

namespace proupsells::velauikit {

using geometry::ProposedSize;
using geometry::Size;
using swiftui::LayoutSubviews;
using swiftui::SubviewPlace;

namespace {

// A row that fits exactly fits, whatever the rounding of its sum.
constexpr double tolerance = 1e-6;

struct Item {
    ProposedSize proposal;
    Size size;
    bool isSpacer = false;
    double leastWidth = 0; // of a spacer
};

// Spacers that wait for the view after them.
struct Gap {
    double leastWidth = 0;
    int spacerCount = 0;
};

// Items [begin, end); the spacers at its ends are not among them.
struct Line {
    std::size_t begin = 0;
    std::size_t end = 0;
    double top = 0;
    double width = 0; // with the spacers' least widths
    double height = 0;
    int spacerCount = 0;
    Gap gapBefore;
};

// An item wider than a whole line is offered that line's width.
std::vector<Item> measured(const LayoutSubviews& subviews, double limit) {
    std::vector<Item> items(subviews.size());
    for (std::size_t index = 0; index < items.size(); ++index) {
        Item& item = items[index];
        item.isSpacer = subviews.isSpacer(index);
        if (item.isSpacer) {
            item.leastWidth = subviews.leastWidth(index);
            continue;
        }
        item.size = subviews.sizeThatFits(index, item.proposal);
        if (item.size.width <= limit + tolerance) continue;
        item.proposal.width = limit;
        item.size = subviews.sizeThatFits(index, item.proposal);
    }
    return items;
}

std::vector<Line> broken(const std::vector<Item>& items, double limit, double spacing) {
    std::vector<Line> lines;
    Gap gap;
    for (std::size_t index = 0; index < items.size(); ++index) {
        const Item& item = items[index];
        if (item.isSpacer) {
            gap.leastWidth += item.leastWidth;
            ++gap.spacerCount;
            continue;
        }
        if (lines.empty() || lines.back().width + gap.leastWidth + spacing + item.size.width > limit + tolerance) {
            lines.push_back({.begin = index, .width = item.size.width, .gapBefore = gap});
        } else {
            lines.back().width += gap.leastWidth + spacing + item.size.width;
            lines.back().spacerCount += gap.spacerCount;
        }
        gap = {};
        lines.back().end = index + 1;
        lines.back().height = std::max(lines.back().height, item.size.height);
    }
    return lines;
}

double distance(const Line& upper, const Line& lower, double spacing) {
    if (lower.gapBefore.spacerCount == 0) return spacing;
    constexpr double touchTarget = 44; // each line has at least a strip of this height to itself
    return std::max({spacing, lower.gapBefore.leastWidth, touchTarget - (upper.height + lower.height) / 2});
}

std::vector<Line> stacked(std::vector<Line> lines, double spacing) {
    for (std::size_t index = 1; index < lines.size(); ++index) {
        const Line& upper = lines[index - 1];
        lines[index].top = upper.top + upper.height + distance(upper, lines[index], spacing);
    }
    return lines;
}

void place(const Line& line, const std::vector<Item>& items, double width, double spacing, std::vector<SubviewPlace>& places) {
    const double share = line.spacerCount > 0 ? std::max(0.0, width - line.width) / line.spacerCount : 0;
    double x = 0;
    for (std::size_t index = line.begin; index < line.end; ++index) {
        const Item& item = items[index];
        if (item.isSpacer) {
            const double length = item.leastWidth + share;
            places[index] = {{x, line.top + line.height / 2}, ProposedSize{length, 0.0}};
            x += length;
            continue;
        }
        if (index > line.begin) x += spacing;
        places[index] = {{x, line.top + (line.height - item.size.height) / 2}, item.proposal};
        x += item.size.width;
    }
}

} // namespace

Size FlowArrangement::sizeThatFits(const ProposedSize& proposal, const LayoutSubviews& subviews) const {
    const double limit = proposal.width.value_or(geometry::infinity);
    Size size;
    for (const Line& line : stacked(broken(measured(subviews, limit), limit, spacing), spacing))
        size = {std::max(size.width, line.width), line.top + line.height};
    if (limit < geometry::infinity) size.width = limit;
    return size;
}

void FlowArrangement::placeSubviews(Size size, const ProposedSize& proposal, const LayoutSubviews& subviews,
                                    std::vector<SubviewPlace>& places) const {
    const double limit = proposal.width.value_or(geometry::infinity);
    const std::vector<Item> items = measured(subviews, limit);
    // Spacers that vanish stand where nobody sees them, at no size.
    for (SubviewPlace& vanished : places) vanished.proposal = ProposedSize{0.0, 0.0};
    for (const Line& line : stacked(broken(items, limit, spacing), spacing)) place(line, items, size.width, spacing, places);
}

} // namespace proupsells::velauikit
