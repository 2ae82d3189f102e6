#pragma once

#include <gtest/gtest.h>

#include <string>

#include "core/reset_state.h"
#include "platform/doors.h"
#include "platform/sim_port.h"
#include "state/app_state.h"
#include "tests/support/memory_files.h"
#include "tests/support/virtual_clipboard.h"
#include "tests/support/virtual_form_host.h"
#include "tests/support/virtual_help_viewer.h"
#include "tests/support/virtual_pump.h"
#include "tests/support/virtual_settings.h"

namespace tr7 {

/// A whole set of virtual doors: port 1 is the simulated controller, English texts.
struct VirtualDoors {
  explicit VirtualDoors(const qvr7sim::Setup& setup = qvr7sim::Setup::Useful(),
                        std::uint64_t seed = 1);
  ~VirtualDoors();

  VirtualPump pump;
  SimPort port;
  VirtualFormHost forms;
  VirtualSettings settings;
  VirtualClipboard clipboard;
  VirtualHelpViewer help;
  MemoryFiles files;  ///< holds the list files that the program brings along
};

/// Every test that touches shared state: start values, virtual doors, English.
class StateTest : public ::testing::Test {
 protected:
  explicit StateTest(const qvr7sim::Setup& setup = qvr7sim::Setup::Useful());

  /// Fails when a box or dialogue came up that the script did not expect.
  void TearDown() override;

  /// True when a box holds this text.
  bool BoxShown(const std::string& part) const;

  VirtualDoors virt;
  VirtualPump& pump = virt.pump;
  VirtualFormHost& forms = virt.forms;
  SimPort& port = virt.port;
  bool allow_unanswered = false;
};

}  // namespace tr7
