#include <gtest/gtest.h>

#include <QByteArray>
#include <fstream>
#include <map>

#include <QTemporaryDir>

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

TEST_F(ApplicationDisplay, IsThereWhereASocketIs) {
    const QTemporaryDir folder;
    qputenv("XDG_RUNTIME_DIR", folder.path().toLocal8Bit());
    qputenv("WAYLAND_DISPLAY", "wayland-0");
    EXPECT_FALSE(Application::hasDisplay());
    std::ofstream(folder.filePath("wayland-0").toStdString()) << '\n';

    EXPECT_TRUE(Application::hasDisplay());
}

TEST(ApplicationDeathTest, IsTheOnlyOne) { EXPECT_DEATH(Application(), "Only one qtbackend::Application can live at a time"); }
