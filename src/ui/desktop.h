#pragma once

#include <QLocale>
#include <QString>
#include <memory>

#include "platform/ini_settings_store.h"
#include "platform/std_files.h"
#include "ui/escape_key.h"
#include "ui/guard_process.h"
#include "ui/help_key.h"
#include "ui/outside_files.h"
#include "ui/qt_clipboard.h"
#include "ui/qt_form_host.h"
#include "ui/qt_help_viewer.h"
#include "ui/qt_printer.h"
#include "ui/qt_pump.h"
#include "ui/qt_serial_port.h"
#include "ui/qt_system_facts.h"
#include "ui/user_work_folder.h"

namespace tr7 {

/// Which settings the program runs on.
struct Profile {
  QString settings_file;  ///< empty: in the user's configuration folder
  bool demo = false;      ///< settings of its own; port 1 is the simulated controller at first
  QLocale locale = QLocale::system();  ///< tells the language of the first start
};

/// Where the settings of a profile stand; the folder is there.
std::string SettingsPath(const Profile& profile);
/// The folder where a profile's unsaved work is kept: in the user's data folder, or beside a
/// settings file that is named.
std::string WorkPath(const Profile& profile);

/// The desktop's set of doors, installed as long as this lives. The QApplication exists before
/// and ends after.
class Desktop {
 public:
  explicit Desktop(const Profile& profile);
  ~Desktop();
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;

  QtPump pump;
  QtSerialPort serial;
  GuardProcess guard{serial};
  QtFormHost forms{pump};
  OutsideFiles outside{forms};
  QtPrinter printer{forms};
  EscapeKey escape;
  HelpKey help_key;
  QtClipboard clipboard;
  QtHelpViewer help;
  QtSystemFacts system;
  StdFiles files;
  IniSettingsStore settings;
  UserWorkFolder work;
};

}  // namespace tr7
