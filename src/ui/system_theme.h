#pragma once

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>
#include <functional>
#include <memory>

#include "ui/look.h"

namespace tr7 {

/// What the desktop says of light and dark. Some tell it by their palette alone, some on the
/// session bus alone: there it is asked for once, without waiting, and every change is heard of.
class SystemTheme : public QObject {
  Q_OBJECT

 public:
  /// `System`: the desktop wishes neither. Where nobody answers, nothing is told.
  using Tell = std::function<void(look::Theme theme)>;
  SystemTheme(const QDBusConnection& bus, Tell tell);

 private slots:
  void Changed(const QString& group, const QString& key, const QDBusVariant& value);

 private:
  void Ask();

  QDBusConnection bus_;
  Tell tell_;
};

/// Lets the look follow the desktop for as long as it lives; null where there is no session bus.
std::unique_ptr<SystemTheme> FollowSystemTheme();

}  // namespace tr7
