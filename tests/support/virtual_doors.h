#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/clipboard.h"
#include "platform/help_viewer.h"
#include "platform/sim_port.h"
#include "platform/work_folder.h"
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

/// Kept work among the files of the set. What begins otherwise was left by another run.
struct VirtualWorkFolder : WorkFolder {
  explicit VirtualWorkFolder(const MemoryFiles& all) : files(all) {}
  std::string Own(const std::string& name) override { return own + name; }
  std::vector<std::string> TakeLeft() override { return Paths(own); }
  void Leave() override {}
  /// Of all runs, but those that begin so.
  std::vector<std::string> Paths(const std::string& but = "-") const {
    std::vector<std::string> paths = files.Paths();
    std::erase_if(paths, [&](const std::string& path) {
      return !path.starts_with("/kept/") || path.starts_with(but) || path.ends_with("damaged");
    });
    return paths;
  }

  const MemoryFiles& files;
  std::string own = "/kept/1.";  ///< what the paths of this run begin with
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
  MemoryFiles files;              ///< holds the list files that the program brings along
  VirtualWorkFolder work{files};  ///< not in use at first
};

}  // namespace tr7
