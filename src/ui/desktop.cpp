#include "ui/desktop.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QStandardPaths>

#include "motion/motion_view.h"
#include "platform/doors.h"
#include "ui/binding.h"
#include "ui/file_drop.h"
#include "ui/icons.h"
#include "ui/sim_dock.h"

namespace tr7 {
namespace {

constexpr const char* kApplication = "QV-DEV";
constexpr const char* kSection = "Settings";

void SetAtFirstUse(SettingsStore& settings, const std::string& key, const std::string& value) {
  if (settings.Get(kSection, key, "").empty()) settings.Set(kSection, key, value);
}

/// By the language that the user reads, which need not be the one of numbers and dates.
bool SpeaksJapanese(const QLocale& locale) {
  const QStringList languages = locale.uiLanguages();
  return !languages.isEmpty() && languages.constFirst().startsWith("ja");
}

}  // namespace

std::string SettingsPath(const Profile& profile) {
  QString path = profile.settings_file;
  if (path.isEmpty()) {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    path = folder + "/" + kApplication + (profile.demo ? "/demo.ini" : "/settings.ini");
  }
  QDir().mkpath(QFileInfo(path).absolutePath());
  return path.toStdString();
}

std::string WorkPath(const Profile& profile) {
  if (!profile.settings_file.isEmpty()) return (profile.settings_file + ".kept").toStdString();
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
  return (folder + "/" + kApplication + (profile.demo ? "/demo.kept" : "/settings.kept"))
      .toStdString();
}

Desktop::Desktop(const Profile& profile)
    : files(QCoreApplication::applicationDirPath().toStdString()),
      settings(files, SettingsPath(profile)),
      work(WorkPath(profile)) {
  SetAtFirstUse(settings, "Language", SpeaksJapanese(profile.locale) ? "1" : "2");
  if (profile.demo) SetAtFirstUse(settings, "PortDevice1", "sim");
  QApplication::setWindowIcon(ProgramIcon());
  doors.pump = &pump;
  doors.serial = &serial;
  doors.settings = &settings;
  doors.forms = &forms;
  doors.clipboard = &clipboard;
  doors.files = &files;
  doors.help = &help;
  doors.guard = &guard;
  doors.printer = &printer;
  doors.work = &work;
  doors.system = &system;
  forms.frame_built = [this, demo = profile.demo](QMainWindow& frame) {
    new FileDrop(frame, outside);
    if (demo) SimDock::AddTo(frame, serial.Sim());
  };
}

Desktop::~Desktop() {
  ResetMotion();  // a teaching session that is still open holds commands of views
  doors = Doors{};
}

}  // namespace tr7
