#pragma once

#include "platform/clipboard.h"
#include "platform/event_pump.h"
#include "platform/files.h"
#include "platform/form_host.h"
#include "platform/help_viewer.h"
#include "platform/motion_guard.h"
#include "platform/printer.h"
#include "platform/serial_port.h"
#include "platform/settings_store.h"
#include "platform/system_facts.h"
#include "platform/work_folder.h"

namespace tr7 {

/// The set of doors in use. The program or the test that installs it owns the objects, keeps them
/// alive as long as logic runs, and installs all of them before the first call.
struct Doors {
  EventPump* pump = nullptr;
  SerialPort* serial = nullptr;
  SettingsStore* settings = nullptr;
  FormHost* forms = nullptr;
  Clipboard* clipboard = nullptr;
  Files* files = nullptr;
  HelpViewer* help = nullptr;
  MotionGuard* guard = nullptr;  ///< null: there is none
  Printer* printer = nullptr;
  WorkFolder* work = nullptr;     ///< null: unsaved work is not kept
  SystemFacts* system = nullptr;  ///< null: nothing is known
};

extern Doors doors;

/// Serves what is due through the installed pump, or sleeps until something is.
void Pump();

}  // namespace tr7
