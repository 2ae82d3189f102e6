#include "ui/system_theme.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QFileInfo>
#include <utility>

namespace tr7 {
namespace {

const QString kDesktop = QStringLiteral("org.freedesktop.portal.Desktop");
const QString kPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString kSettings = QStringLiteral("org.freedesktop.portal.Settings");
const QString kGroup = QStringLiteral("org.freedesktop.appearance");
const QString kKey = QStringLiteral("color-scheme");
constexpr int kPatienceMs = 3000;

/// A number, in one wrapping or in several.
look::Theme ThemeOf(QVariant value) {
  constexpr uint kDark = 1, kLight = 2;
  while (value.metaType() == QMetaType::fromType<QDBusVariant>()) {
    value = value.value<QDBusVariant>().variant();
  }
  const uint wish = value.toUInt();
  if (wish == kDark) return look::Theme::Dark;
  return wish == kLight ? look::Theme::Light : look::Theme::System;
}

/// Not one that would only be started by the look for it: that takes its time.
bool HasSessionBus() {
  const QString address = qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS");
  if (!address.isEmpty()) return !address.startsWith(QLatin1String("autolaunch:"));
  const QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
  return !folder.isEmpty() && QFileInfo::exists(folder + "/bus");
}

}  // namespace

SystemTheme::SystemTheme(const QDBusConnection& bus, Tell tell)
    : bus_(bus), tell_(std::move(tell)) {
  qRegisterMetaType<QDBusVariant>();  // without it there is no such slot for the bus
  // From whoever has that path: to ask for its owner would be to wait. Ahead of the question, so
  // that no change falls between the two.
  bus_.connect(QString(), kPath, kSettings, QStringLiteral("SettingChanged"), {kGroup, kKey},
               QStringLiteral("ssv"), this, SLOT(Changed(QString, QString, QDBusVariant)));
  Ask();
}

void SystemTheme::Ask() {
  QDBusMessage question =
      QDBusMessage::createMethodCall(kDesktop, kPath, kSettings, QStringLiteral("Read"));
  question << kGroup << kKey;
  auto* pending = new QDBusPendingCallWatcher(bus_.asyncCall(question, kPatienceMs), this);
  QObject::connect(pending, &QDBusPendingCallWatcher::finished, this, [this, pending] {
    pending->deleteLater();
    const QDBusMessage reply = pending->reply();
    const bool told = reply.type() == QDBusMessage::ReplyMessage && !reply.arguments().isEmpty();
    if (told) tell_(ThemeOf(reply.arguments().constFirst()));
  });
}

void SystemTheme::Changed(const QString& /*group*/, const QString& /*key*/,
                          const QDBusVariant& value) {
  tell_(ThemeOf(value.variant()));
}

std::unique_ptr<SystemTheme> FollowSystemTheme() {
  if (!HasSessionBus()) return nullptr;
  return std::make_unique<SystemTheme>(QDBusConnection::sessionBus(), look::SystemSays);
}

}  // namespace tr7
