// Whether somebody has asked the process to end.
#pragma once

#include <csignal>

namespace proupsells::hostprogram {

// Keeps the process alive when it is told to end (by Ctrl+C, or by another program), so that it can finish first. One at a time.
class EndRequest {
public:
    EndRequest();
    ~EndRequest();
    EndRequest(const EndRequest&) = delete;
    EndRequest& operator=(const EndRequest&) = delete;

    static bool isThere();
    // Ends the process as it was asked to, if it was.
    static void obey();
};

} // namespace proupsells::hostprogram
