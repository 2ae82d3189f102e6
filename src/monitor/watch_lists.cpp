#include "monitor/watch_lists.h"

#include <string_view>

#include "base/text_helpers.h"
#include "forms/frm_io_check_fg.h"
#include "state/settings.h"

namespace tr7 {

WatchListsRecord WatchLists;

namespace {

constexpr int kHighest = 100, kHighestPosHensu = 4;
constexpr double kThousand = 1000.0;

const char* SettingKey(WatchKind kind) {
  constexpr std::array kKeys{"Flag", "Vari", "Pvar"};
  return kKeys[static_cast<std::size_t>(kind)];
}

/// A whole number in plain digits; -1 for anything else.
int NumberIn(const std::string& text) {
  constexpr std::size_t kLongest = 3;
  const std::string digits(Trim(text));
  const bool plain = !digits.empty() && digits.size() <= kLongest &&
                     digits.find_first_not_of("0123456789") == std::string::npos;
  return plain ? static_cast<int>(Val(digits)) : -1;
}

bool Within(int value, int high) { return value >= 1 && value <= high; }

/// "3,7": program and number.
std::optional<WatchItem> ItemOfSetting(WatchKind kind, const std::string& text) {
  const std::size_t comma = text.find(',');
  if (comma == std::string::npos) return std::nullopt;
  const std::string program = text.substr(0, comma);
  return WatchItemOf(kind, NumberIn(program) == 0, program, text.substr(comma + 1));
}

}  // namespace

std::optional<WatchItem> WatchItemOf(WatchKind kind, bool global, const std::string& program,
                                     const std::string& number) {
  WatchItem item{Trim(program).empty() ? 0 : NumberIn(program), NumberIn(number)};
  const bool common = global && kind != WatchKind::PosHensu;
  const bool program_fits = common ? item.program == 0 : Within(item.program, kHighest);
  const bool number_fits =
      Within(item.number, kind == WatchKind::PosHensu ? kHighestPosHensu : kHighest);
  return program_fits && number_fits ? std::optional(item) : std::nullopt;
}

std::string WatchProgramText(const WatchItem& item) {
  return item.program == 0 ? "(Global)" : std::to_string(item.program);
}

std::string WatchNumberText(WatchKind kind, const WatchItem& item) {
  const bool common = item.program == 0;
  const char* letter = kind == WatchKind::PosHensu ? "PR" : common ? "R" : "r";
  if (kind == WatchKind::Flag) letter = common ? "F" : "f";
  return letter + std::to_string(item.number);
}

std::string WatchValueText(WatchKind kind, const WatchItem& item) {
  if (!item.value) return "X";
  if (kind == WatchKind::Flag) return *item.value != 0 ? "O" : "-";
  return kind == WatchKind::Hensu ? std::to_string(*item.value) : FormatMm(*item.value / kThousand);
}

std::optional<double> WatchValue(WatchKind kind, const WatchItem& item) {
  if (!item.value) return std::nullopt;
  return kind == WatchKind::PosHensu ? *item.value / kThousand : *item.value;
}

void LoadWatchLists() {
  for (const WatchKind kind : kWatchKinds) {
    WatchLists[kind].clear();
    for (int row = 0; row < kMostWatched; ++row) {
      const auto item = ItemOfSetting(kind, GetSetting(SettingKey(kind) + std::to_string(row), ""));
      if (item) WatchLists[kind].push_back(*item);
    }
  }
}

void SaveWatchList(WatchKind kind) {
  const auto& list = WatchLists[kind];
  for (std::size_t row = 0; row < kMostWatched; ++row) {
    const std::string text = row < list.size() ? std::to_string(list[row].program) + "," +
                                                     std::to_string(list[row].number)
                                               : std::string();
    const std::string key = SettingKey(kind) + std::to_string(row);
    if (GetSetting(key, "") != text) PutSetting(key, text);
  }
}

void ForgetWatchValues() {
  for (auto& list : WatchLists.Lists) {
    for (WatchItem& item : list) item.value.reset();
  }
}

}  // namespace tr7
