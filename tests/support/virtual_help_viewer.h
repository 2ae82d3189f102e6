#pragma once

#include <string>

#include "platform/help_viewer.h"

namespace tr7 {

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

}  // namespace tr7
