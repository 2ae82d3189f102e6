#pragma once

#include <map>
#include <string>
#include <utility>

#include "platform/settings_store.h"

namespace tr7 {

/// Settings in memory.
class VirtualSettings : public SettingsStore {
 public:
  std::string Get(const std::string& section, const std::string& key,
                  const std::string& fallback) const override {
    const auto found = values.find({section, key});
    return found == values.end() ? fallback : found->second;
  }
  bool Set(const std::string& section, const std::string& key, const std::string& value) override {
    values[{section, key}] = value;
    return true;
  }

  std::map<std::pair<std::string, std::string>, std::string> values;
};

}  // namespace tr7
