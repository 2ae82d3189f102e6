#pragma once

#include <string>

#include "base/setting_line.h"

namespace tr7 {

/// The door to the per-user settings of application "QV-DEV": text by section and key.
class SettingsStore {
 public:
  virtual ~SettingsStore() = default;
  /// All keys of a section.
  virtual SettingKeys All(const std::string& section) const = 0;
  /// The stored text, or `fallback` when the key is absent.
  virtual std::string Get(const std::string& section, const std::string& key,
                          const std::string& fallback) const = 0;
  /// Stores the text at once; false when the medium refuses it (the value then holds for this run).
  virtual bool Set(const std::string& section, const std::string& key,
                   const std::string& value) = 0;
  /// The section holds these keys and no others from now on: all of it at once, or on the medium
  /// nothing. False as with `Set`.
  virtual bool Replace(const std::string& section, const SettingKeys& keys) = 0;
};

}  // namespace tr7
