#pragma once

#include <string>

namespace tr7 {

/// The door to the system's text clipboard; UTF-8. Texts that are set have CR alone between lines;
/// texts of other programs may have LF.
class Clipboard {
 public:
  virtual ~Clipboard() = default;
  virtual std::string Text() const = 0;
  /// Whether there is any, where the platform can tell without fetching it from its owner.
  virtual bool HasText() const { return !Text().empty(); }
  virtual void SetText(const std::string& text) = 0;
};

}  // namespace tr7
