#pragma once

#include <string>

namespace tr7 {

/// The door to what the program runs on, in words for a report.
class SystemFacts {
 public:
  virtual ~SystemFacts() = default;
  /// "Qt 6.4.2".
  virtual std::string Toolkit() const = 0;
  /// Operating system, kernel and processor.
  virtual std::string System() const = 0;
};

}  // namespace tr7
