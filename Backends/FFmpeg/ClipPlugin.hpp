// The seam between the program and the plug-in that brings FFmpeg: the plug-in is loaded when the first clip is wanted.
#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

#include "Platform/Host/ClipDecoder.hpp"

namespace proupsells::ffmpegbackend {

// How a decoder behaves when it is asked for a frame that it does not have yet.
enum class Pace {
    realTime, // answers with what it has, and catches up in the background
    exact,    // waits for the frame
};

// What the plug-in needs of the program, so that it links none of its libraries.
struct PluginHost {
    Pace pace = Pace::realTime;
    // Takes one line of complaint; called on the thread that asks for frames.
    void (*complain)(const char* message) = nullptr;
    // The bytes of a file that is part of the program, good as long as the clips; absent for any other.
    std::optional<std::string_view> (*embeddedBytes)(const std::filesystem::path& file) = nullptr;
};

// The plug-in's one function. The caller owns the decoder.
using MakeClipDecoder = host::ClipDecoder* (*)(const PluginHost&);

// What that function is called in the plug-in. Another name whenever PluginHost changes, so that a program finds no plug-in of
// another version.
inline constexpr const char* makeClipDecoderSymbol = "proupsellsMakeClipDecoder2";
// What the plug-in's file is called.
inline constexpr const char* pluginFileName = "proupsells-clips.so";

} // namespace proupsells::ffmpegbackend
