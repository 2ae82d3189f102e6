#include "platform/ini_settings_store.h"

#include <cstddef>
#include <utility>

#include "platform/atomic_save.h"

namespace tr7 {
namespace {

constexpr std::size_t kFileLimit = 1u << 20;
constexpr const char* kDefaultSection = "Settings";

}  // namespace

IniSettingsStore::IniSettingsStore(Files& files, std::string path)
    : files_(files), path_(std::move(path)) {
  std::string text;
  const FileFault fault = files_.Read(path_, kFileLimit, text);
  may_save_ = fault == FileFault::None || fault == FileFault::NotFound;
  if (fault == FileFault::None) ReadLines(text);
}

void IniSettingsStore::ReadLines(std::string_view text) {
  if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
  std::string section = kDefaultSection;
  while (!text.empty()) {
    const std::string_view line = TakeSettingLine(text);
    if (line.starts_with('[')) {
      const std::string_view name = line.substr(1, line.size() > 1 ? line.size() - 2 : 0);
      section = line.ends_with(']') && IsSettingName(name) ? std::string(name) : kDefaultSection;
      continue;
    }
    if (auto read = ReadSettingLine(line)) sections_[section][read->first] = read->second;
  }
}

SettingKeys IniSettingsStore::All(const std::string& section) const {
  const auto keys = sections_.find(section);
  return keys == sections_.end() ? SettingKeys() : keys->second;
}

std::string IniSettingsStore::Get(const std::string& section, const std::string& key,
                                  const std::string& fallback) const {
  const auto keys = sections_.find(section);
  if (keys == sections_.end()) return fallback;
  const auto found = keys->second.find(key);
  return found == keys->second.end() ? fallback : found->second;
}

bool IniSettingsStore::Set(const std::string& section, const std::string& key,
                           const std::string& value) {
  if (!IsSettingName(section) || !IsSettingName(key)) return false;
  SettingKeys& keys = sections_[section];
  const auto [place, added] = keys.try_emplace(key, value);
  if (!added && place->second == value && !unsaved_) return true;
  place->second = value;
  unsaved_ = true;
  return Save();
}

bool IniSettingsStore::Replace(const std::string& section, const SettingKeys& keys) {
  if (!IsSettingName(section)) return false;
  for (const auto& [key, value] : keys) {
    if (!IsSettingName(key)) return false;
  }
  sections_[section] = keys;
  unsaved_ = true;
  return Save();
}

bool IniSettingsStore::Save() {
  if (!may_save_) return false;
  std::string text;
  for (const auto& [section, keys] : sections_) {
    text += "[" + section + "]\n";
    for (const auto& [key, value] : keys) text += SettingLine(key, value);
  }
  if (SaveAtomically(files_, path_, text) != FileFault::None) return false;
  unsaved_ = false;
  return true;
}

}  // namespace tr7
