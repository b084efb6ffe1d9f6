// Qt's application object, set up for a host program.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "Platform/System/Compiler.hpp"

class QGuiApplication;

namespace proupsells::qtbackend {

// How the application object is made.
struct ApplicationOptions {
    std::string name = "ProUpsells"; // shown to the person
    bool isHeadless = false;         // no display is asked for; pictures can still be made
    std::optional<double> scale;     // pixels a point; the display's own where absent
};

// One a process, before fonts, pictures or windows are used.
class PROUPSELLS_EXPORT Application {
public:
    // Stops the program where there is an application object already.
    explicit Application(const ApplicationOptions& options = {});
    ~Application();
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    // Whether there is a display that a window could be shown on, as far as can be told without asking it. May be asked before the
    // application is made.
    static bool hasDisplay();

    // Handles events until quit() or until the last window is closed. Returns the exit status.
    int run();
    // Makes run() return, when the events at hand are handled.
    static void quit(int exitStatus = 0);

private:
    std::string m_name;
    int m_argumentCount = 1;
    char* m_arguments[2];
    std::unique_ptr<QGuiApplication> m_application;
};

} // namespace proupsells::qtbackend
