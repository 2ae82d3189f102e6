#pragma once

#include <map>
#include <string>
#include <utility>

#include "platform/settings_store.h"

namespace tr7 {

/// Settings in memory.
class VirtualSettings : public SettingsStore {
 public:
  SettingKeys All(const std::string& section) const override {
    SettingKeys keys;
    for (const auto& [place, value] : values) {
      if (place.first == section) keys[place.second] = value;
    }
    return keys;
  }
  std::string Get(const std::string& section, const std::string& key,
                  const std::string& fallback) const override {
    const auto found = values.find({section, key});
    return found == values.end() ? fallback : found->second;
  }
  bool Set(const std::string& section, const std::string& key, const std::string& value) override {
    values[{section, key}] = value;
    return true;
  }
  bool Replace(const std::string& section, const SettingKeys& keys) override {
    std::erase_if(values, [&](const auto& entry) { return entry.first.first == section; });
    for (const auto& [key, value] : keys) Set(section, key, value);
    return true;
  }

  std::map<std::pair<std::string, std::string>, std::string> values;
};

}  // namespace tr7
