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
};

// Items [begin, end); the spacers at its ends are not among them.
struct Line {
    std::size_t begin = 0;
    std::size_t end = 0;
    double width = 0; // without spacers
    double height = 0;
    int spacerCount = 0;
};

// An item wider than a whole line is offered that line's width.
std::vector<Item> measured(const LayoutSubviews& subviews, double limit) {
    std::vector<Item> items(subviews.size());
    for (std::size_t index = 0; index < items.size(); ++index) {
        Item& item = items[index];
        item.isSpacer = subviews.isSpacer(index);
        if (item.isSpacer) continue;
        item.size = subviews.sizeThatFits(index, item.proposal);
        if (item.size.width <= limit + tolerance) continue;
        item.proposal.width = limit;
        item.size = subviews.sizeThatFits(index, item.proposal);
    }
    return items;
}

std::vector<Line> broken(const std::vector<Item>& items, double limit, double spacing) {
    std::vector<Line> lines;
    int waitingSpacers = 0; // they count once a view has followed on their line
    for (std::size_t index = 0; index < items.size(); ++index) {
        const Item& item = items[index];
        if (item.isSpacer) {
            ++waitingSpacers;
            continue;
        }
        if (lines.empty() || lines.back().width + spacing + item.size.width > limit + tolerance) {
            lines.push_back({.begin = index, .width = item.size.width});
        } else {
            lines.back().width += spacing + item.size.width;
            lines.back().spacerCount += waitingSpacers;
        }
        waitingSpacers = 0;
        lines.back().end = index + 1;
        lines.back().height = std::max(lines.back().height, item.size.height);
    }
    return lines;
}

void place(const Line& line, const std::vector<Item>& items, double top, double width, double spacing,
           std::vector<SubviewPlace>& places) {
    const double share = line.spacerCount > 0 ? std::max(0.0, width - line.width) / line.spacerCount : 0;
    double x = 0;
    for (std::size_t index = line.begin; index < line.end; ++index) {
        const Item& item = items[index];
        if (item.isSpacer) {
            places[index] = {{x, top + line.height / 2}, ProposedSize{share, 0.0}};
            x += share;
            continue;
        }
        if (index > line.begin) x += spacing;
        places[index] = {{x, top + (line.height - item.size.height) / 2}, item.proposal};
        x += item.size.width;
    }
}

} // namespace

Size FlowArrangement::sizeThatFits(const ProposedSize& proposal, const LayoutSubviews& subviews) const {
    const double limit = proposal.width.value_or(geometry::infinity);
    const std::vector<Line> lines = broken(measured(subviews, limit), limit, spacing);
    Size size{0, lines.empty() ? 0 : spacing * double(lines.size() - 1)};
    for (const Line& line : lines) {
        size.width = std::max(size.width, line.width);
        size.height += line.height;
    }
    if (limit < geometry::infinity) size.width = limit;
    return size;
}

void FlowArrangement::placeSubviews(Size size, const ProposedSize& proposal, const LayoutSubviews& subviews,
                                    std::vector<SubviewPlace>& places) const {
    const double limit = proposal.width.value_or(geometry::infinity);
    const std::vector<Item> items = measured(subviews, limit);
    // Spacers that vanish stand where nobody sees them, at no size.
    for (SubviewPlace& vanished : places) vanished.proposal = ProposedSize{0.0, 0.0};
    double top = 0;
    for (const Line& line : broken(items, limit, spacing)) {
        place(line, items, top, size.width, spacing, places);
        top += line.height + spacing;
    }
}

} // namespace proupsells::velauikit
