#include "Apps/ProUpsellsWindow/EndRequest.hpp"

namespace proupsells::hostprogram {

namespace {

constexpr int endSignals[] = {SIGINT, SIGTERM};

volatile std::sig_atomic_t requested = 0;

extern "C" void noteEndRequest(int signal) { requested = signal; }

} // namespace

EndRequest::EndRequest() {
    for (const int signal : endSignals) std::signal(signal, noteEndRequest);
}

EndRequest::~EndRequest() {
    for (const int signal : endSignals) std::signal(signal, SIG_DFL);
}

bool EndRequest::isThere() { return requested != 0; }

void EndRequest::obey() {
    if (!isThere()) return;
    std::signal(requested, SIG_DFL);
    std::raise(requested);
}

} // namespace proupsells::hostprogram
