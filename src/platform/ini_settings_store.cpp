#include "platform/ini_settings_store.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>

#include "platform/atomic_save.h"

namespace tr7 {
namespace {

constexpr std::size_t kFileLimit = 1u << 20;
constexpr const char* kDefaultSection = "Settings";

/// Letters behind a backslash and the characters they stand for.
constexpr std::string_view kEscapeLetters = "\\\"nrt";
constexpr std::string_view kEscaped = "\\\"\n\r\t";

bool IsBlank(char c) { return c == ' ' || c == '\t'; }
bool IsControl(char c) { return (c >= 0 && c < ' ') || c == '\x7F'; }
bool HasControl(std::string_view text) { return std::any_of(text.begin(), text.end(), IsControl); }

std::string_view Trimmed(std::string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
}

std::string Quoted(const std::string& value) {
  std::string text = "\"";
  for (const char c : value) {
    const std::size_t at = kEscaped.find(c);
    if (at == std::string_view::npos) {
      text += c;
    } else {
      text += '\\';
      text += kEscapeLetters[at];
    }
  }
  return text + '"';
}

std::string ValueText(const std::string& value) {
  if (value.empty()) return value;
  const bool plain = !IsBlank(value.front()) && !IsBlank(value.back()) && value.front() != '"' &&
                     !HasControl(value);
  return plain ? value : Quoted(value);
}

/// What stands behind the equals sign as a value; nothing when it is damaged.
std::optional<std::string> ReadValue(std::string_view text) {
  text = Trimmed(text);
  if (HasControl(text)) return std::nullopt;
  if (text.empty() || text.front() != '"') return std::string(text);
  text.remove_prefix(1);
  std::string value;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '"') {
      if (i + 1 != text.size()) return std::nullopt;
      return value;
    }
    if (text[i] == '\\') {
      if (++i == text.size()) return std::nullopt;
      const std::size_t at = kEscapeLetters.find(text[i]);
      if (at == std::string_view::npos) return std::nullopt;
      value += kEscaped[at];
    } else {
      value += text[i];
    }
  }
  return std::nullopt;
}

/// A section or key name that comes back as it was written.
bool IsGoodName(std::string_view name) {
  return !name.empty() && name.find_first_of("=[]") == std::string_view::npos &&
         !HasControl(name) && Trimmed(name).size() == name.size();
}

std::string_view TakeLine(std::string_view& rest) {
  const std::size_t end = std::min(rest.find('\n'), rest.size());
  std::string_view line = rest.substr(0, end);
  rest.remove_prefix(std::min(end + 1, rest.size()));
  if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
  return Trimmed(line);
}

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
    const std::string_view line = TakeLine(text);
    if (line.starts_with('[')) {
      const std::string_view name = line.substr(1, line.size() > 1 ? line.size() - 2 : 0);
      section = line.ends_with(']') && IsGoodName(name) ? std::string(name) : kDefaultSection;
      continue;
    }
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos) continue;
    const std::string_view key = Trimmed(line.substr(0, equals));
    auto value = ReadValue(line.substr(equals + 1));
    if (IsGoodName(key) && value) sections_[section][std::string(key)] = std::move(*value);
  }
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
  if (!IsGoodName(section) || !IsGoodName(key)) return false;
  Keys& keys = sections_[section];
  const auto [place, added] = keys.try_emplace(key, value);
  if (!added && place->second == value && !unsaved_) return true;
  place->second = value;
  unsaved_ = true;
  return Save();
}

bool IniSettingsStore::Save() {
  if (!may_save_) return false;
  std::string text;
  for (const auto& [section, keys] : sections_) {
    text += "[" + section + "]\n";
    for (const auto& [key, value] : keys) text += key + "=" + ValueText(value) + "\n";
  }
  if (SaveAtomically(files_, path_, text) != FileFault::None) return false;
  unsaved_ = false;
  return true;
}

}  // namespace tr7
