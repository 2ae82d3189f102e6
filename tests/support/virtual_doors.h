#pragma once

#include <cstdint>

#include "platform/sim_port.h"
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

}  // namespace tr7
