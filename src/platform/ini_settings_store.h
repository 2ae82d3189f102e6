#pragma once

#include <map>
#include <string>
#include <string_view>

#include "base/setting_line.h"
#include "platform/files.h"
#include "platform/settings_store.h"

namespace tr7 {

/// Settings in a plain UTF-8 file that a person can read: "[Settings]", then key=value lines.
/// Lines that cannot be read are dropped, and the rest holds; of a key that comes twice the last
/// one counts. Keys ahead of any section, or under a section line that cannot be read, belong to
/// "Settings".
///
/// Each `Set` saves the file at once, so that a power cut leaves the old or the new settings.
/// Where the medium cannot be written, values hold for this run. A file that is there and could
/// not be read is never replaced.
class IniSettingsStore : public SettingsStore {
 public:
  /// Reads the file. None at all, or a damaged one, is no error: what it lacks is at its default.
  IniSettingsStore(Files& files, std::string path);

  SettingKeys All(const std::string& section) const override;
  std::string Get(const std::string& section, const std::string& key,
                  const std::string& fallback) const override;
  bool Set(const std::string& section, const std::string& key, const std::string& value) override;
  bool Replace(const std::string& section, const SettingKeys& keys) override;

 private:
  void ReadLines(std::string_view text);
  bool Save();

  Files& files_;
  std::string path_;
  std::map<std::string, SettingKeys> sections_;
  bool may_save_ = true;
  bool unsaved_ = false;  ///< the file lacks what is held here
};

}  // namespace tr7
