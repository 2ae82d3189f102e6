#pragma once

#include <string>
#include <string_view>

#include "base/setting_line.h"

namespace tr7 {

/// Settings that travel from one computer to another: a head, one key a line as the store holds
/// them, and an end. Where the frame stands belongs to its screen, and stays.
std::string SettingsAsText(const SettingKeys& keys);

struct SettingsRead {
  SettingKeys keys;
  int bad_line = 0;  ///< from 1; above 0: the text is damaged there, or of another kind
};
/// A text that lacks its end has been cut off, and a key that comes twice contradicts itself: both
/// are damage.
SettingsRead ReadSettingsText(std::string_view bytes);

/// What an import brings: `read`, and of `here` what does not travel.
SettingKeys SettingsBehindImport(const SettingKeys& read, const SettingKeys& here);

/// What an import would do to what is here.
struct SettingsChange {
  int other = 0;  ///< keys of the file that are another text here, or are not here
  int gone = 0;   ///< keys that are only here
};
SettingsChange CompareSettings(const SettingKeys& read, const SettingKeys& here);

}  // namespace tr7
