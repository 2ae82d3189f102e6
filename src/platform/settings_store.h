#pragma once

#include <string>

namespace tr7 {

/// The door to the per-user settings of application "QV-DEV": text by section and key.
class SettingsStore {
 public:
  virtual ~SettingsStore() = default;
  /// The stored text, or `fallback` when the key is absent.
  virtual std::string Get(const std::string& section, const std::string& key,
                          const std::string& fallback) const = 0;
  /// Stores the text at once; false when the medium refuses it (the value then holds for this run).
  virtual bool Set(const std::string& section, const std::string& key,
                   const std::string& value) = 0;
};

}  // namespace tr7
