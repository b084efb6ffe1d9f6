#include "Backends/Qt/Application.hpp"

#include <QGuiApplication>
#include <cstring>
#include <filesystem>
#include <string>

#include "Platform/Commons/FatalError.hpp"

namespace proupsells::qtbackend {

namespace {

// What Qt says about things that are none of the user's business, or that we report ourselves.
bool isNotice(const QMessageLogContext& context, const QString& message) {
    return message.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR not set")) ||
           message.trimmed().startsWith(QLatin1String("OpenType support missing for")) ||
           (context.category && std::strncmp(context.category, "qt.svg", 6) == 0);
}

// Which servers Qt's platforms connect to is Qt's affair, so it is known here. Qt itself cannot be asked: it stops the program
// where nobody answers. Asking a server would take its own library, so the file is looked for that a server on this machine listens
// at; one elsewhere is taken at its word.
bool hasXServer() {
    const std::string display = qgetenv("DISPLAY").toStdString();
    const std::size_t colon = display.rfind(':');
    if (colon == std::string::npos) return false;
    if (colon > 0 && display.substr(0, colon) != "unix") return true;
    const std::string number = display.substr(colon + 1, display.find('.', colon) - colon - 1);
    return std::filesystem::exists("/tmp/.X11-unix/X" + number);
}

bool hasWaylandServer() {
    const std::filesystem::path socket = qgetenv("WAYLAND_DISPLAY").toStdString();
    if (socket.empty()) return false;
    // An absolute name replaces the folder.
    return std::filesystem::exists(qgetenv("XDG_RUNTIME_DIR").toStdString() / socket);
}

QtMessageHandler previousHandler = nullptr;

void handleMessage(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (type == QtWarningMsg && isNotice(context, message)) return;
    if (previousHandler) previousHandler(type, context, message);
}

} // namespace

Application::Application(const ApplicationOptions& options) : m_name(options.name), m_arguments{m_name.data(), nullptr} {
    if (QCoreApplication::instance()) commons::fatalError("Only one qtbackend::Application can live at a time");
    if (options.isHeadless) qputenv("QT_QPA_PLATFORM", "offscreen");
    if (options.scale) {
        // The factor is on top of the display's own, which is therefore switched off.
        qputenv("QT_ENABLE_HIGHDPI_SCALING", "0");
        qputenv("QT_SCALE_FACTOR", QByteArray::number(*options.scale, 'g', 17));
    }
    previousHandler = qInstallMessageHandler(handleMessage);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    m_application = std::make_unique<QGuiApplication>(m_argumentCount, m_arguments);
    QGuiApplication::setApplicationDisplayName(QString::fromStdString(m_name));
}

Application::~Application() {
    m_application.reset();
    qInstallMessageHandler(previousHandler);
}

bool Application::hasDisplay() {
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM").split(';').front().split(':').front();
    if (platform == "offscreen" || platform.startsWith("minimal")) return false;
    const bool needsServer = platform.isEmpty() || platform == "xcb" || platform.startsWith("wayland");
    return !needsServer || hasXServer() || hasWaylandServer();
}

int Application::run() { return QGuiApplication::exec(); }

void Application::quit(int exitStatus) { QCoreApplication::exit(exitStatus); }

} // namespace proupsells::qtbackend
