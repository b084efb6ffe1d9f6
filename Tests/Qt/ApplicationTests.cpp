#include <gtest/gtest.h>

#include <QByteArray>
#include <fstream>
#include <map>

#include <QGuiApplication>
#include <QLoggingCategory>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <filesystem>
#include <unistd.h>

#include "Backends/Qt/Application.hpp"

using namespace proupsells;

namespace {

// The environment's variables that name a display, unset, and as they were afterwards.
class ApplicationDisplay : public testing::Test {
protected:
    ApplicationDisplay() {
        for (const char* name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY", "XDG_RUNTIME_DIR"}) {
            if (qEnvironmentVariableIsSet(name)) m_former[name] = qgetenv(name);
            m_names.push_back(name);
            qunsetenv(name);
        }
    }
    ~ApplicationDisplay() override {
        for (const char* name : m_names) {
            if (m_former.contains(name))
                qputenv(name, m_former[name]);
            else
                qunsetenv(name);
        }
    }

private:
    std::vector<const char*> m_names;
    std::map<std::string, QByteArray> m_former;
};

// A file where an X server of this machine would listen; the number is nobody's.
class FakeXServer {
public:
    FakeXServer() : m_folder("/tmp/.X11-unix"), m_madeFolder(std::filesystem::create_directories(m_folder)) {
        std::ofstream(m_folder / ("X" + number)) << '\n';
    }
    ~FakeXServer() {
        std::filesystem::remove(m_folder / ("X" + number));
        if (m_madeFolder) std::filesystem::remove(m_folder);
    }
    FakeXServer(const FakeXServer&) = delete;

    const std::string number = std::to_string(70'000 + getpid());

private:
    std::filesystem::path m_folder;
    bool m_madeFolder;
};

// What a message of Qt's writes on standard error.
template <class Action>
std::string written(Action action) {
    testing::internal::CaptureStderr();
    action();
    return testing::internal::GetCapturedStderr();
}

} // namespace

using qtbackend::Application;

TEST_F(ApplicationDisplay, IsMissingWhereNoneIsNamed) { EXPECT_FALSE(Application::hasDisplay()); }

TEST_F(ApplicationDisplay, IsMissingWhereNobodyListens) {
    qputenv("DISPLAY", ":98765");
    qputenv("WAYLAND_DISPLAY", "no-such-socket");

    EXPECT_FALSE(Application::hasDisplay());
}

TEST_F(ApplicationDisplay, IsMissingOnPlatformsThatNobodySees) {
    qputenv("DISPLAY", "elsewhere:0");
    EXPECT_TRUE(Application::hasDisplay());

    qputenv("QT_QPA_PLATFORM", "offscreen");
    EXPECT_FALSE(Application::hasDisplay());
    qputenv("QT_QPA_PLATFORM", "minimal");
    EXPECT_FALSE(Application::hasDisplay());
    qputenv("QT_QPA_PLATFORM", "linuxfb:fb=/dev/fb0");
    EXPECT_TRUE(Application::hasDisplay());
}

TEST_F(ApplicationDisplay, IsMissingWhereItsPlatformNeedsAServerThatIsNotThere) {
    for (const char* platform : {"xcb", "wayland", "wayland-egl", "minimalegl", "xcb:option=1", "wayland;linuxfb"}) {
        qputenv("QT_QPA_PLATFORM", platform);
        EXPECT_FALSE(Application::hasDisplay()) << platform;
    }
    for (const char* platform : {"linuxfb", "vnc:size=10x10", "eglfs;xcb"}) {
        qputenv("QT_QPA_PLATFORM", platform);
        EXPECT_TRUE(Application::hasDisplay()) << platform;
    }
}

TEST_F(ApplicationDisplay, IsThereWhereAnXServerOfThisMachineIs) {
    const FakeXServer server;
    for (const std::string& name : {":" + server.number, ":" + server.number + ".0", "unix:" + server.number + ".1"}) {
        qputenv("DISPLAY", name.c_str());
        EXPECT_TRUE(Application::hasDisplay()) << name;
    }
    for (const std::string& name : {server.number, ":" + server.number + "0", ":1" + server.number, std::string("unix:98765")}) {
        qputenv("DISPLAY", name.c_str());
        EXPECT_FALSE(Application::hasDisplay()) << name;
    }
    for (const char* elsewhere : {"machine:98765", "u:98765.0", "[::1]:98765"}) {
        qputenv("DISPLAY", elsewhere);
        EXPECT_TRUE(Application::hasDisplay()) << elsewhere;
    }
}

TEST_F(ApplicationDisplay, IsThereWhereASocketIs) {
    const QTemporaryDir folder;
    qputenv("XDG_RUNTIME_DIR", folder.path().toLocal8Bit());
    qputenv("WAYLAND_DISPLAY", "wayland-0");
    EXPECT_FALSE(Application::hasDisplay());
    std::ofstream(folder.filePath("wayland-0").toStdString()) << '\n';

    EXPECT_TRUE(Application::hasDisplay());
    qputenv("WAYLAND_DISPLAY", "");
    EXPECT_FALSE(Application::hasDisplay());
    qputenv("WAYLAND_DISPLAY", folder.filePath("wayland-0").toLocal8Bit());
    qputenv("XDG_RUNTIME_DIR", "/no such folder");
    EXPECT_TRUE(Application::hasDisplay());
}

TEST(ApplicationDeathTest, IsTheOnlyOne) { EXPECT_DEATH(Application(), "Only one qtbackend::Application can live at a time"); }

TEST(HeadlessApplication, AsksForNoDisplayAndIsCalledAsItsHostSays) {
    EXPECT_EQ(qgetenv("QT_QPA_PLATFORM"), "offscreen");
    EXPECT_EQ(QGuiApplication::platformName(), "offscreen");
    EXPECT_EQ(QGuiApplication::applicationDisplayName(), "Tests / ProUpsells");
    EXPECT_EQ(QGuiApplication::highDpiScaleFactorRoundingPolicy(), Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
}

TEST(HeadlessApplication, EndsWithTheStatusThatItIsToldToQuitWith) {
    QTimer::singleShot(0, [] { Application::quit(3); });

    EXPECT_EQ(QGuiApplication::exec(), 3);
}

TEST(WithoutAnApplication, ItIsSaidWhatIsMissing) {
    const auto said = [](const char* call) {
        QProcess program;
        program.start(QCoreApplication::applicationFilePath(), {"--call-too-early", call});
        EXPECT_TRUE(program.waitForFinished(-1));
        EXPECT_EQ(program.exitStatus(), QProcess::CrashExit);
        return program.readAllStandardError().toStdString();
    };

    EXPECT_EQ(said("install"),
              "There is no QApplication yet: create one before proupsells::qtbackend::install() and before any screen\n");
    EXPECT_EQ(said("settings"), "There is no QApplication yet: create one before qtbackend::DesktopSettings::shared()\n");
}

TEST(ScaledApplication, HasTheScaleOfItsHostOnEveryDisplay) {
    const auto scales = [](const char* scale) {
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("QT_QPA_PLATFORM", "offscreen:configfile=" PROUPSELLS_DISPLAYS);
        program.setProcessEnvironment(environment);
        program.start(QCoreApplication::applicationFilePath(), {"--print-scales", scale});
        EXPECT_TRUE(program.waitForFinished(-1));
        EXPECT_EQ(program.readAllStandardError(), "QStandardPaths: XDG_RUNTIME_DIR not set\n");
        return program.readAllStandardOutput().toStdString();
    };

    EXPECT_EQ(scales("1.75"), "1.75\n1.75\n1.75\n1.75\n");
    EXPECT_EQ(scales("1"), "1\n1\n1\n1\n");
    EXPECT_EQ(scales(""), "1\n1.25\n1.5\n2\n");
}

TEST(MessagesOfQt, ThatAreNobodysBusinessAreLeftOut) {
    const QLoggingCategory pictures("qt.svg.draw");

    EXPECT_EQ(written([] { qWarning("QStandardPaths: XDG_RUNTIME_DIR not set, defaulting to '/tmp'"); }), "");
    EXPECT_EQ(written([] { qWarning("  OpenType support missing for \"Any Face\", script 11"); }), "");
    EXPECT_EQ(written([&] { qCWarning(pictures, "The requested buffer size is too big"); }), "");
}

TEST(MessagesOfQt, OfAllOtherKindsAreWritten) {
    const QLoggingCategory windows("qt.qpa.window"), almost("qt.sv");

    EXPECT_EQ(written([] { qWarning("a bad warning"); }), "a bad warning\n");
    EXPECT_EQ(written([] { qCritical("OpenType support missing for all"); }), "OpenType support missing for all\n");
    EXPECT_NE(written([&] { qCWarning(windows, "no window"); }), "");
    EXPECT_NE(written([&] { qCWarning(almost, "almost"); }), "");
}
