#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace tr7 {

/// The keys of a section of the settings, each with its text.
using SettingKeys = std::map<std::string, std::string>;

/// A section or key name that comes back as it was written.
bool IsSettingName(std::string_view name);

/// "key=value" and the line's end. The value stands in quotes where it has blanks at an end or a
/// control character in it; within, \\, \", \n, \r and \t stand for what they say.
std::string SettingLine(const std::string& key, const std::string& value);

/// Key and value of such a line without its end; nothing when it is damaged.
std::optional<std::pair<std::string, std::string>> ReadSettingLine(std::string_view line);

/// Takes the first line of `rest`, without its end and without blanks around it.
std::string_view TakeSettingLine(std::string_view& rest);

}  // namespace tr7
