#include "state/settings_text.h"

#include "base/code_page.h"
#include "base/text_helpers.h"

namespace tr7 {
namespace {

constexpr std::string_view kHead = "[QV-TR7 settings]", kEnd = "[end]";

/// Where the frame stands on this screen.
bool Stays(const std::string& key) {
  return key == "MainLeft" || key == "MainTop" || key == "MainWidth" || key == "MainHeight" ||
         key == "MainMaximised";
}

/// The acceleration of a step has two hexadecimal digits in its frame.
bool MayBeTaken(const std::string& key, const std::string& value) {
  return !key.starts_with("AccOf100Pls") || (Val(value) >= 0 && Val(value) <= 0xFF);
}

/// Takes a key's line into what was read; false when it is damaged.
bool TakeKey(std::string_view line, SettingKeys& keys) {
  if (!DecodeCodePage(kCodePageUtf8, line).ok()) return false;
  auto read = ReadSettingLine(line);
  if (!read || !MayBeTaken(read->first, read->second)) return false;
  return Stays(read->first) || keys.insert(std::move(*read)).second;
}

/// Nothing goes out that would make the file a damaged one.
bool CanBeTaken(std::string_view line) {
  SettingKeys taken;
  return TakeKey(TakeSettingLine(line), taken);
}

bool IsEmptyFrom(std::string_view text) {
  while (!text.empty()) {
    if (!TakeSettingLine(text).empty()) return false;
  }
  return true;
}

}  // namespace

std::string SettingsAsText(const SettingKeys& keys) {
  std::string text = std::string(kHead) + "\n";
  for (const auto& [key, value] : keys) {
    const std::string line = SettingLine(key, value);
    if (!Stays(key) && CanBeTaken(line)) text += line;
  }
  return text + std::string(kEnd) + "\n";
}

SettingsRead ReadSettingsText(std::string_view bytes) {
  if (bytes.starts_with("\xEF\xBB\xBF")) bytes.remove_prefix(3);
  SettingsRead read;
  int line_no = 1;
  if (TakeSettingLine(bytes) != kHead) return {{}, line_no};
  while (!bytes.empty()) {
    ++line_no;
    const std::string_view line = TakeSettingLine(bytes);
    if (line == kEnd) return IsEmptyFrom(bytes) ? read : SettingsRead{{}, line_no + 1};
    if (!line.empty() && !TakeKey(line, read.keys)) return {{}, line_no};
  }
  return {{}, line_no + 1};
}

SettingKeys SettingsBehindImport(const SettingKeys& read, const SettingKeys& here) {
  SettingKeys keys = read;
  for (const auto& [key, value] : here) {
    if (Stays(key)) keys[key] = value;
  }
  return keys;
}

SettingsChange CompareSettings(const SettingKeys& read, const SettingKeys& here) {
  SettingsChange change;
  for (const auto& [key, value] : read) {
    const auto found = here.find(key);
    if (found == here.end() || found->second != value) ++change.other;
  }
  for (const auto& [key, value] : here) {
    if (!Stays(key) && !read.contains(key)) ++change.gone;
  }
  return change;
}

}  // namespace tr7
