#include "Backends/Qt/Application.hpp"

#include <QGuiApplication>
#include <cstring>

#include "Platform/Commons/FatalError.hpp"

namespace qtbackend {

namespace {

// What Qt says about things that are none of the user's business, or that we report ourselves.
bool isNotice(const QMessageLogContext& context, const QString& message) {
    return message.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR not set")) ||
           message.trimmed().startsWith(QLatin1String("OpenType support missing for")) ||
           (context.category && std::strncmp(context.category, "qt.svg", 6) == 0);
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
    return qEnvironmentVariableIsSet("QT_QPA_PLATFORM") || !qEnvironmentVariableIsEmpty("DISPLAY") ||
           !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

int Application::run() { return QGuiApplication::exec(); }

void Application::quit(int exitStatus) { QCoreApplication::exit(exitStatus); }

} // namespace qtbackend
