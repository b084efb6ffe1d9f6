#include <gmock/gmock.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServer>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <map>
#include <optional>

#include "Backends/Qt/DesktopPortal.hpp"
#include "Backends/Qt/DesktopSettings.hpp"
#include "Tests/Qt/Events.hpp"
#include "Tests/Support/TemporaryFolder.hpp"

using namespace proupsells;

using graphics::ColorScheme;
using graphics::ContentSizeCategory;
using qtbackend::DesktopPortal;
using qtbackend::DesktopSettings;
using testing::IsEmpty;
using tests::handleEventsUntil;
using tests::settle;

namespace {

const QString anyDesktop = "org.freedesktop.appearance", gnome = "org.gnome.desktop.interface";
const QString portalPath = "/org/freedesktop/portal/desktop", portalInterface = "org.freedesktop.portal.Settings";

// Answers as a portal does; a bus is not needed for that.
class FakePortal : public QDBusVirtualObject {
public:
    FakePortal() {
        connect(&m_server, &QDBusServer::newConnection, this, [this](QDBusConnection client) {
            client.registerVirtualObject(portalPath, this, QDBusConnection::SubPath);
            m_client = client;
        });
    }
    ~FakePortal() override {
        QDBusConnection::disconnectFromPeer("to the portal");
        if (m_client) m_client->unregisterObject(portalPath);
    }

    QDBusConnection connection() const { return QDBusConnection::connectToPeer(m_server.address(), "to the portal"); }

    void change(const QString& group, const QString& key, const QVariant& value) {
        values[{group, key}] = value;
        QDBusMessage signal = QDBusMessage::createSignal(portalPath, portalInterface, "SettingChanged");
        m_client->send(signal << group << key << QVariant::fromValue(QDBusVariant(value)));
    }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        if (message.member() != method) return connection.send(message.createErrorReply(QDBusError::UnknownMethod, "unknown"));
        ++questions;
        const auto found = values.find({message.arguments().at(0).toString(), message.arguments().at(1).toString()});
        if (found == values.end())
            return connection.send(message.createErrorReply("org.freedesktop.portal.Error.NotFound", "unknown setting"));
        QVariant answer = QVariant::fromValue(QDBusVariant(found->second));
        if (wrapsTwice) answer = QVariant::fromValue(QDBusVariant(answer));
        return connection.send(message.createReply(answer));
    }

    std::map<std::pair<QString, QString>, QVariant> values;
    QString method = "Read";
    bool wrapsTwice = true;
    int questions = 0;

private:
    QDBusServer m_server;
    std::optional<QDBusConnection> m_client;
};

// Of the environment, for as long as it lives; without a value where that is null.
class ChangedVariable {
public:
    ChangedVariable(const char* name, const char* value)
        : m_name(name), m_former(qEnvironmentVariableIsSet(name) ? std::optional(qgetenv(name)) : std::nullopt) {
        value ? qputenv(name, value) : qunsetenv(name);
    }
    ~ChangedVariable() { m_former ? qputenv(m_name, *m_former) : qunsetenv(m_name); }
    ChangedVariable(const ChangedVariable&) = delete;

private:
    const char* m_name;
    std::optional<QByteArray> m_former;
};

class DesktopPortals : public testing::Test {
protected:
    void follow() { new DesktopPortal(portal.connection(), {}, settings); }
    ContentSizeCategory textSize() const { return settings.textSize(1); }

    FakePortal portal;
    DesktopSettings settings;
};

} // namespace

TEST_F(DesktopPortals, AreAskedForWhatThePersonWants) {
    portal.values = {
        {{gnome, "text-scaling-factor"}, 1.25}, {{gnome, "enable-animations"}, false}, {{anyDesktop, "color-scheme"}, 1u}};
    follow();

    EXPECT_TRUE(handleEventsUntil([&] { return textSize() == ContentSizeCategory::extraExtraLarge; }));
    EXPECT_TRUE(handleEventsUntil([&] { return settings.reducesMotion(); }));
    EXPECT_TRUE(handleEventsUntil([&] { return settings.colorScheme() == ColorScheme::dark; }));
}

TEST_F(DesktopPortals, AreAskedByTheNewerMethodWhereTheyHaveNoOther) {
    portal.method = "ReadOne";
    portal.wrapsTwice = false;
    portal.values = {{{gnome, "text-scaling-factor"}, 2.0}};
    follow();

    EXPECT_TRUE(handleEventsUntil([&] { return textSize() == ContentSizeCategory::accessibilityLarge; }));
}

TEST_F(DesktopPortals, TellOfChangesWhileTheProgramRuns) {
    follow();
    ASSERT_TRUE(handleEventsUntil([&] { return portal.questions > 0; }));
    portal.change(gnome, "text-scaling-factor", 1.25);
    EXPECT_TRUE(handleEventsUntil([&] { return textSize() == ContentSizeCategory::extraExtraLarge; }));
    portal.change(anyDesktop, "reduced-motion", 1u);
    EXPECT_TRUE(handleEventsUntil([&] { return settings.reducesMotion(); }));
    portal.change(anyDesktop, "reduced-motion", 0u);
    EXPECT_TRUE(handleEventsUntil([&] { return !settings.reducesMotion(); }));
    portal.change(anyDesktop, "contrast", 1u);
    EXPECT_TRUE(handleEventsUntil([&] { return settings.increasesContrast(); }));
    portal.change(anyDesktop, "color-scheme", 2u);

    EXPECT_TRUE(handleEventsUntil([&] { return settings.colorScheme() == ColorScheme::light; }));
}

TEST_F(DesktopPortals, ChangeNothingByWhatNobodyFollows) {
    int changes = 0;
    QObject::connect(&settings, &DesktopSettings::changed, [&] { ++changes; });
    follow();
    ASSERT_TRUE(handleEventsUntil([&] { return portal.questions > 0; }));
    portal.change(gnome, "cursor-size", 48);
    portal.change(gnome, "text-scaling-factor", 2.0);
    ASSERT_TRUE(handleEventsUntil([&] { return textSize() == ContentSizeCategory::accessibilityLarge; }));

    EXPECT_EQ(changes, 1);
}

TEST_F(DesktopPortals, ThatAreNotThereLeaveEverythingAsItIs) {
    testing::internal::CaptureStderr();
    new DesktopPortal(QDBusConnection("nowhere"), "org.freedesktop.portal.Desktop", settings);
    settle();

    EXPECT_EQ(textSize(), ContentSizeCategory::large);
    EXPECT_FALSE(settings.reducesMotion());
    EXPECT_FALSE(settings.colorScheme());
    EXPECT_THAT(testing::internal::GetCapturedStderr(), IsEmpty());
}

TEST(SessionBus, IsNamedByItsAddressOrFoundInTheFolderOfTheSession) {
    const tests::TemporaryFolder empty, full;
    full.write("bus", "");
    const auto isThere = [](const char* address, const std::filesystem::path& folder) {
        const ChangedVariable bus("DBUS_SESSION_BUS_ADDRESS", address), runtime("XDG_RUNTIME_DIR", folder.c_str());
        return qtbackend::hasSessionBus();
    };

    EXPECT_FALSE(isThere(nullptr, empty.path()));
    EXPECT_TRUE(isThere("unix:path=/nowhere", empty.path()));
    EXPECT_TRUE(isThere(nullptr, full.path()));
}

TEST(DesktopSettingsOfAPerson, LeaveTextsAsTheyAreWhereTheFactorIsNone) {
    for (const QVariant& factor :
         {QVariant(0.0), QVariant(-1.0), QVariant(qQNaN()), QVariant(qInf()), QVariant("large"), QVariant()}) {
        DesktopSettings settings;
        settings.adopt(gnome, "text-scaling-factor", factor);
        EXPECT_EQ(settings.textSize(1), ContentSizeCategory::large) << factor.toString().toStdString();
    }
}

TEST(DesktopSettingsOfAPerson, ReduceMotionWhereEitherSettingSaysSo) {
    DesktopSettings settings;
    settings.adopt(gnome, "enable-animations", true);
    settings.adopt(anyDesktop, "reduced-motion", 0u);
    EXPECT_FALSE(settings.reducesMotion());
    settings.adopt(gnome, "enable-animations", false);
    EXPECT_TRUE(settings.reducesMotion());
    settings.adopt(gnome, "enable-animations", true);
    EXPECT_FALSE(settings.reducesMotion());
    settings.adopt(anyDesktop, "reduced-motion", 1u);

    EXPECT_TRUE(settings.reducesMotion());
}

TEST(DesktopSettingsOfAPerson, HaveAnAppearanceOnlyWhereItIsWanted) {
    DesktopSettings settings;
    for (const auto& [said, expected] : {std::pair{1u, std::optional(ColorScheme::dark)},
                                         {2u, std::optional(ColorScheme::light)},
                                         {0u, std::nullopt},
                                         {7u, std::nullopt}}) {
        settings.adopt(anyDesktop, "color-scheme", said);
        EXPECT_EQ(settings.colorScheme(), expected) << said;
    }
}

TEST(DesktopSettingsOfAPerson, AskForMoreContrastWhereEitherSettingSaysSo) {
    DesktopSettings settings;
    EXPECT_FALSE(settings.increasesContrast());
    settings.adopt(anyDesktop, "contrast", 1u);
    EXPECT_TRUE(settings.increasesContrast());
    settings.adopt(anyDesktop, "contrast", 0u);
    EXPECT_FALSE(settings.increasesContrast());
    settings.adopt("org.gnome.desktop.a11y.interface", "high-contrast", true);

    EXPECT_TRUE(settings.increasesContrast());
}

TEST(DesktopSettingsOfAPerson, AreToldOnceForEachChange) {
    DesktopSettings settings;
    int changes = 0;
    QObject::connect(&settings, &DesktopSettings::changed, [&] { ++changes; });
    settings.adopt(gnome, "text-scaling-factor", 1.5);
    settings.adopt(gnome, "text-scaling-factor", 1.5);

    EXPECT_EQ(changes, 1);
}

// A display of 1.25 pixels a point whose texts are to be 1.25 times as large shows them so already.
TEST(DesktopSettingsOfAPerson, CountTheFactorForTextsOnce) {
    for (const auto& [textScale, displayScale, expected] : {std::tuple{1.25, 1.0, 1.25},
                                                            {1.25, 1.25, 1.0},
                                                            {1.25, 2.5, 1.0},
                                                            {1.25, 2.0, 1.25},
                                                            {1.1, 106 / 96.0, 1.0},
                                                            {2.0, 1.0, 2.0},
                                                            {2.0, 2.0, 1.0},
                                                            {1.0, 2.0, 1.0},
                                                            {0.5, 1.0, 0.5},
                                                            {3.0, 1.0, 3.0}})
        EXPECT_EQ(qtbackend::remainingTextScale(textScale, displayScale), expected) << textScale << " on " << displayScale;
}

TEST(DesktopSettingsOfAPerson, AreAPartOfTheScaleOnX11Alone) {
    EXPECT_TRUE(qtbackend::displayMayCountTextScale("xcb", ""));
    EXPECT_TRUE(qtbackend::displayMayCountTextScale("xcb", "1"));
    EXPECT_FALSE(qtbackend::displayMayCountTextScale("xcb", "0"));
    EXPECT_FALSE(qtbackend::displayMayCountTextScale("wayland", ""));
}

TEST(DesktopSettingsOfAPerson, CountTheFactorForTextsOnEveryDisplayThatDoesNot) {
    DesktopSettings settings;
    settings.adopt(gnome, "text-scaling-factor", 1.25);

    for (const double displayScale : {1.0, 1.25, 2.5})
        EXPECT_EQ(settings.textSize(displayScale), ContentSizeCategory::extraExtraLarge);
}

TEST(DesktopSettingsOfAPerson, HaveNoFactorThatIsALittleLess) {
    for (const auto& [textScale, displayScale, expected] : {std::tuple{1.25, 1.25 * 1.019, 1.0},
                                                            {1.25, 1.25 * 1.021, 1.25},
                                                            {1.25, 1.25 * 0.981, 1.0},
                                                            {1.25, 1.25 * 0.979, 1.25},
                                                            {4.0, 0.04, 4.0},
                                                            {3.0, 1.5, 3.0}})
        EXPECT_EQ(qtbackend::remainingTextScale(textScale, displayScale), expected) << textScale << " on " << displayScale;
}
