// Everything that toolkit code needs around it, with a clock that stands still until it is told to move.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "Backends/Headless/FixedTextShaper.hpp"
#include "Platform/Commons/DefaultLogger.hpp"
#include "Platform/Host/Services.hpp"
#include "Platform/RunLoop/MainRunLoop.hpp"
#include "Platform/System/Compiler.hpp"

namespace proupsells::headless {

// While it lives, its run loop is the main one, its services are installed, and log records are collected instead of written.
class PROUPSELLS_EXPORT TestBed {
public:
    // Takes one record that nobody has taken.
    using UnexpectedLogHandler = std::function<void(const commons::LogRecord&)>;

    // A fixed-metrics shaper and an image size reader; the locale is "en_US".
    TestBed();
    // Services that are null are replaced by those above.
    explicit TestBed(host::Services services, std::string localeIdentifier = "en_US");
    // Every log record that nobody took is unexpected. Puts back what was there before.
    ~TestBed();
    TestBed(const TestBed&) = delete;
    TestBed& operator=(const TestBed&) = delete;

    // The main run loop, on a virtual clock.
    runloop::MainRunLoop& loop() { return *m_loop; }
    // The clock's time; 0 at first.
    double now_s() const { return m_loop->now_s(); }
    // Lets time pass, with everything that is due on the way.
    void runUntil(double time_s) { m_loop->runUntil(time_s); }
    void runFor(double duration_s) { m_loop->runUntil(m_loop->now_s() + duration_s); }
    // Does what is due now.
    void settle() { m_loop->settle(); }

    // Those of the newest installation.
    const host::Services& services() const { return host::Installation::current(); }
    // Null when another shaper was given.
    FixedTextShaper* fixedTextShaper() const;

    // The records since the last call; they count as expected from then on.
    std::vector<commons::LogRecord> takeLogRecords();
    // Told of unexpected records at the end. A test framework's failure belongs here; the default writes to standard error.
    static void setUnexpectedLogHandler(UnexpectedLogHandler handler);

private:
    std::vector<commons::LogRecord> m_logRecords;
    commons::DefaultLogger::Sink m_previousSink;
    foundation::Locale m_previousLocale;
    std::unique_ptr<runloop::MainRunLoop> m_loop;
    std::unique_ptr<host::Installation> m_installation;
};

} // namespace proupsells::headless
