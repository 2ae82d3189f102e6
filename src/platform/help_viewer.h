#pragma once

#include <string>

namespace tr7 {

/// The door to the platform's help facility.
class HelpViewer {
 public:
  virtual ~HelpViewer() = default;
  /// Opens an existing help file; false when the platform cannot.
  virtual bool Open(const std::string& path) = 0;
};

}  // namespace tr7
