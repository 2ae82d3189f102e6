#pragma once

#include <cstdint>

#include "platform/clipboard.h"
#include "platform/help_viewer.h"
#include "platform/sim_port.h"
#include "tests/support/memory_files.h"
#include "tests/support/virtual_form_host.h"
#include "tests/support/virtual_printer.h"
#include "tests/support/virtual_pump.h"
#include "tests/support/virtual_settings.h"

namespace tr7 {

/// A clipboard in memory.
class VirtualClipboard : public Clipboard {
 public:
  std::string Text() const override { return text; }
  void SetText(const std::string& new_text) override { text = new_text; }

  std::string text;
};

/// Notes what would have been opened.
class VirtualHelpViewer : public HelpViewer {
 public:
  bool Open(const std::string& path) override {
    opened = path;
    return works;
  }

  std::string opened;
  bool works = true;
};

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
  VirtualPrinter printer;
  MemoryFiles files;  ///< holds the list files that the program brings along
};

}  // namespace tr7
