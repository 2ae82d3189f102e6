#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tr7 {

enum class WatchKind { Flag, Hensu, PosHensu };
inline constexpr std::array kWatchKinds{WatchKind::Flag, WatchKind::Hensu, WatchKind::PosHensu};

/// A flag or variable that the monitor reads; program 0 stands for what is common to all.
struct WatchItem {
  int program = 0;
  int number = 0;
  std::optional<std::int32_t> value = {};  ///< position variables: thousandths

  bool IsSame(const WatchItem& other) const {
    return program == other.program && number == other.number;
  }
};

/// The three lists, index by `WatchKind`.
struct WatchListsRecord {
  std::array<std::vector<WatchItem>, 3> Lists;
  std::vector<WatchItem>& operator[](WatchKind kind) { return Lists[static_cast<int>(kind)]; }
};
extern WatchListsRecord WatchLists;

/// What the fields name. Nothing where the numbers do not fit one another.
std::optional<WatchItem> WatchItemOf(WatchKind kind, bool global, const std::string& program,
                                     const std::string& number);

// What a row shows: the program or "(Global)", the item with its letter, the value or "X".
std::string WatchProgramText(const WatchItem& item);
std::string WatchNumberText(WatchKind kind, const WatchItem& item);
std::string WatchValueText(WatchKind kind, const WatchItem& item);
/// The value for a plot; none where there is none.
std::optional<double> WatchValue(WatchKind kind, const WatchItem& item);

/// The lists are plain settings. What is no item of its list is passed over.
void LoadWatchLists();
void SaveWatchList(WatchKind kind);
/// No value is known any more.
void ForgetWatchValues();

}  // namespace tr7
