#include "Backends/Headless/TestBed.hpp"

#include <iostream>
#include <utility>

#include "Backends/Headless/ImageSizeReader.hpp"

namespace proupsells::headless {

namespace {

TestBed::UnexpectedLogHandler& unexpectedLogHandler() {
    static TestBed::UnexpectedLogHandler handler;
    return handler;
}

void report(const commons::LogRecord& record) {
    if (unexpectedLogHandler()) return unexpectedLogHandler()(record);
    std::cerr << "Unexpected log record: " << record.message << " (" << record.function << ")\n";
}

host::Services completed(host::Services services) {
    if (!services.textShaper) services.textShaper = std::make_shared<FixedTextShaper>();
    if (!services.imageDecoder) services.imageDecoder = std::make_shared<ImageSizeReader>();
    return services;
}

} // namespace

TestBed::TestBed() : TestBed(host::Services{}) {}

TestBed::TestBed(host::Services services, std::string localeIdentifier)
    : m_previousLocale(foundation::Locale::current()),
      m_loop(std::make_unique<runloop::MainRunLoop>(std::make_shared<runloop::VirtualClock>())),
      m_installation(std::make_unique<host::Installation>(completed(std::move(services)))) {
    m_previousSink =
        commons::DefaultLogger::shared().setSink([this](const commons::LogRecord& record) { m_logRecords.push_back(record); });
    foundation::Locale::setCurrent(foundation::Locale(std::move(localeIdentifier)));
}

TestBed::~TestBed() {
    // What waits in the loop may log when it is let go of.
    m_loop.reset();
    m_installation.reset();
    foundation::Locale::setCurrent(m_previousLocale);
    commons::DefaultLogger::shared().setSink(std::move(m_previousSink));
    for (const commons::LogRecord& record : m_logRecords) report(record);
}

FixedTextShaper* TestBed::fixedTextShaper() const { return dynamic_cast<FixedTextShaper*>(services().textShaper.get()); }

std::vector<commons::LogRecord> TestBed::takeLogRecords() { return std::exchange(m_logRecords, {}); }

void TestBed::setUnexpectedLogHandler(UnexpectedLogHandler handler) { unexpectedLogHandler() = std::move(handler); }

} // namespace proupsells::headless
