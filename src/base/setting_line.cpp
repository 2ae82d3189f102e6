#include "base/setting_line.h"

#include <algorithm>
#include <cstddef>

namespace tr7 {
namespace {

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

}  // namespace

bool IsSettingName(std::string_view name) {
  return !name.empty() && name.find_first_of("=[]") == std::string_view::npos &&
         !HasControl(name) && Trimmed(name).size() == name.size();
}

std::string SettingLine(const std::string& key, const std::string& value) {
  return key + "=" + ValueText(value) + "\n";
}

std::optional<std::pair<std::string, std::string>> ReadSettingLine(std::string_view line) {
  const std::size_t equals = line.find('=');
  if (equals == std::string_view::npos) return std::nullopt;
  const std::string_view key = Trimmed(line.substr(0, equals));
  auto value = ReadValue(line.substr(equals + 1));
  if (!IsSettingName(key) || !value) return std::nullopt;
  return std::pair(std::string(key), std::move(*value));
}

std::string_view TakeSettingLine(std::string_view& rest) {
  const std::size_t end = std::min(rest.find('\n'), rest.size());
  std::string_view line = rest.substr(0, end);
  rest.remove_prefix(std::min(end + 1, rest.size()));
  if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
  return Trimmed(line);
}

}  // namespace tr7
