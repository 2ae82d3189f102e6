// Light and dark after the desktop, on a session bus of the test's own.

#include "ui/system_theme.h"

#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QProcess>

#include "tests/ui/ui_test.h"

namespace tr7 {
namespace {

/// The desktop's side: wishes for dark when it is asked.
struct Portal : QDBusVirtualObject {
  QString introspect(const QString&) const override { return {}; }
  bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override {
    const QVariant wish = QVariant::fromValue(QDBusVariant(1u));
    return bus.send(call.createReply(QVariant::fromValue(QDBusVariant(wish))));
  }
};

TEST_F(UiTest, TheLookFollowsTheDesktopWhileItRuns) {
  QProcess daemon;
  daemon.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
  if (!daemon.waitForReadyRead(5000)) GTEST_SKIP() << "no session bus can be started";
  const QString address = QString::fromUtf8(daemon.readLine()).trimmed();
  QDBusConnection desktops = QDBusConnection::connectToBus(address, "desktop");
  Portal portal;
  const QString path = "/org/freedesktop/portal/desktop";
  ASSERT_TRUE(desktops.registerVirtualObject(path, &portal) &&
              desktops.registerService("org.freedesktop.portal.Desktop"));
  look::Apply(*qApp, look::Theme::System);
  const QColor light = look::Colours().base;
  const SystemTheme follows(QDBusConnection::connectToBus(address, "tool"), look::SystemSays);
  EXPECT_TRUE(Until([&light] { return look::Colours().base != light; }));
  QDBusMessage change =
      QDBusMessage::createSignal(path, "org.freedesktop.portal.Settings", "SettingChanged");
  change << "org.freedesktop.appearance"
         << "color-scheme" << QVariant::fromValue(QDBusVariant(2u));
  desktops.send(change);
  EXPECT_TRUE(Until([&light] { return look::Colours().base == light; }));
  for (const char* name : {"tool", "desktop"}) QDBusConnection::disconnectFromBus(name);
  daemon.kill();
  daemon.waitForFinished();
}

}  // namespace
}  // namespace tr7
