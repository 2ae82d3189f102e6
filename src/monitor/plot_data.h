#pragma once

#include <compare>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "forms/plot.h"

namespace tr7 {

enum class PlotKind { Input, Output, Position, Flag, Hensu, PosHensu };

/// What a trace is of: the row of a points' table, an axis, or program and number of an item.
struct PlotKey {
  PlotKind kind = PlotKind::Input;
  int program = 0;
  int number = 0;
  auto operator<=>(const PlotKey&) const = default;  // NOLINT: its own 0 is no pointer
};

struct PlotEntry {
  PlotTrace trace;
  bool shown = false;
};

/// What the monitor has seen in the last 10 minutes. A trace stays where it is until it is dropped.
struct PlotDataRecord {
  std::map<PlotKey, PlotEntry> Entries;
  std::vector<PlotKey> Items;            ///< in the order of the user's list
  std::int64_t FirstMs = 0, LastMs = 0;  ///< of the values that there are; 0: none yet
  std::int64_t BeganMs = 0;              ///< the first value that there was: times count from it

  /// A trace is one of the items, under this name.
  void Take(const PlotKey& key, const std::string& name, bool digital);
  /// Traces that are no items are gone.
  void DropOthers();
  /// A value at a time that is not before the last one. What is older than 10 minutes goes.
  void Add(const PlotKey& key, std::int64_t at_ms, std::optional<double> value);
};
extern PlotDataRecord PlotData;

inline constexpr std::int64_t kPlotKeepsMs = 10 * 60 * 1000;

/// The traces as a table for other programs: a line a time, a column a trace.
std::string PlotAsCsv(const std::vector<const PlotTrace*>& traces, std::int64_t from_ms,
                      const std::string& time_title);

}  // namespace tr7
