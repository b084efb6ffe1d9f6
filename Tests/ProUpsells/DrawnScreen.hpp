// What a screen paints, in words: a line for every command, back to front, with all that decides about its pixels.
#pragma once

#include <cmath>
#include <cstdio>
#include <initializer_list>
#include <sstream>
#include <string>

#include "Platform/Graphics/DisplayList.hpp"

namespace proupsells::tests {

// To hundredths, without zeros at the end.
inline std::string rounded(double number) {
    char text[40];
    std::snprintf(text, sizeof text, "%.2f", std::round(number * 100) / 100 + 0.0);
    std::string result = text;
    while (result.ends_with('0')) result.pop_back();
    if (result.ends_with('.')) result.pop_back();
    return result;
}

// What a command paints of its text.
inline std::string paintedWords(const graphics::ShapedText& text, const graphics::Command& command) {
    const graphics::Cluster &first = text.clusters[command.firstCluster], &last = text.clusters[command.endCluster - 1];
    return graphics::joinedText(text.runs).substr(first.textOffset, last.textOffset + last.textLength - first.textOffset);
}

class DrawnScreen {
public:
    explicit DrawnScreen(const graphics::DisplayList& list, geometry::Size size) : m_list(list), m_screen{{}, size} {}

    std::string text() {
        for (const graphics::Command& command : m_list.commands) describe(command);
        return m_stream.str();
    }

private:
    using Kind = graphics::CommandKind;

    void describe(const graphics::Command& command) {
        static constexpr const char* names[] = {"fill",           "fill rounded", "stroke rounded", "fill ellipse",
                                                "stroke ellipse", "fill path",    "stroke path",    "image",
                                                "bitmap",         "text",         "shadow"};
        m_stream << names[std::size_t(command.kind)];
        say("", command.frame);
        if (command.kind != Kind::bitmap && !isInItsOwnColors(command)) sayColor(command.color);
        if (command.opacity != 1) say(" opacity", {command.opacity});
        if (command.cornerRadius != 0) {
            say(" corners", {command.cornerRadius});
            if (command.cornerStyle == geometry::CornerStyle::continuous) m_stream << " continuous";
        }
        if (command.lineWidth != 0) say(" line", {command.lineWidth});
        if (command.blurRadius != 0) say(" blur", {command.blurRadius});
        if (command.clip != m_screen) say(" inside", command.clip);
        if (command.clipRadius != 0) {
            say(" rounded", {command.clipRadius});
            say(" of", command.roundedClip);
        }
        if (command.transform >= 0) {
            const geometry::Transform& by = m_list.transforms[std::size_t(command.transform)];
            say(" turned", {by.a, by.b, by.c, by.d, by.tx, by.ty});
        }
        sayResource(command);
        m_stream << '\n';
    }

    bool isInItsOwnColors(const graphics::Command& command) const {
        return command.kind == Kind::image &&
               m_list.images[std::size_t(command.resource)]->renderingMode == graphics::RenderingMode::original;
    }

    void sayResource(const graphics::Command& command) {
        const auto index = std::size_t(command.resource);
        if (command.kind == Kind::fillPath || command.kind == Kind::strokePath) {
            m_stream << " path";
            for (const geometry::Point& point : m_list.paths[index].points()) say("", {point.x, point.y});
        }
        if (command.kind == Kind::image)
            m_stream << ' ' << m_list.images[index]->name << (command.scheme == graphics::ColorScheme::dark ? " dark" : "");
        if (command.kind == Kind::bitmap)
            say(" pixels", {double(m_list.bitmaps[index]->width), double(m_list.bitmaps[index]->height)});
        if (command.kind == Kind::text) sayText(*m_list.texts[index], command);
    }

    void sayText(const graphics::ShapedText& text, const graphics::Command& command) {
        const graphics::StyledRun& run = text.runs[text.clusters[command.firstCluster].run];
        m_stream << " \"" << paintedWords(text, command) << "\" " << (run.font.face ? run.font.face->name : "system") << ' '
                 << rounded(run.font.size);
        if (run.font.weightOption) m_stream << " weight " << *run.font.weightOption;
        if (run.kern != 0) say(" kern", {run.kern});
    }

    void say(const char* what, const geometry::Rect& rect) { say(what, {rect.minX(), rect.minY(), rect.width(), rect.height()}); }
    void say(const char* what, std::initializer_list<double> numbers) {
        m_stream << what;
        for (const double number : numbers) m_stream << ' ' << rounded(number);
    }
    void sayColor(graphics::RGBA color) {
        char text[16];
        std::snprintf(text, sizeof text, " #%02X%02X%02X", color.red, color.green, color.blue);
        m_stream << text;
        if (color.alpha != 255) m_stream << " alpha " << int(color.alpha);
    }

    const graphics::DisplayList& m_list;
    geometry::Rect m_screen;
    std::ostringstream m_stream;
};

} // namespace proupsells::tests
