#pragma once

#include <array>
#include <string>
#include <vector>

#include "base/scope.h"
#include "compare/compare.h"
#include "data/data_flows.h"
#include "state/message_box.h"

namespace tr7 {

/// What a kind of whole tables tells of its comparison.
template <typename Table>
struct DataComparison {
  const DataKind& kind;
  MsgId title_id;
  Table &held, &stage;
  Table left_out;  ///< a table that holds nothing
  void (*rows)(const std::array<Table, 2>& sides, CompareList& list);
  /// Takes one row of `there` into the table; false where `there` holds nothing.
  bool (*take)(const Table& there, int key);
  void (*show)();  ///< the table on screen
};

/// Brings what a source holds in as `side`. The stage holds what it held: files that are opened
/// later fall back on it.
template <typename Table>
[[nodiscard]] bool FetchData(const DataComparison<Table>& data, CompareSource source,
                             const std::string& path, Table& side) {
  const ScopeExit put_back([&data, before = data.stage] { data.stage = before; });
  switch (source) {
    case CompareSource::Screen:
      data.kind.StoreShown();
      side = data.held;
      return true;
    case CompareSource::Controller:
      if (ReadDataToStage(data.kind) != Outcome::Done) return false;
      break;
    case CompareSource::File:
      data.stage = data.left_out;
      if (!ReadDataFileToStage(data.kind, path) || data.kind.FileWasRefused()) return false;
      break;
  }
  side = data.stage;
  return true;
}

/// What differs between two tables, a line each. `name_of`: what a row is called by its key.
template <typename Table>
std::string LinesOfDifferences(const Table& here, const Table& there,
                               void (*rows)(const std::array<Table, 2>&, CompareList&),
                               std::string (*name_of)(int key)) {
  CompareList list(false);
  rows({here, there}, list);
  std::string lines;
  for (const CompareRow& row : list.Rows()) {
    lines += DifferenceLine(name_of(row.key), row.here, row.there);
  }
  return lines;
}

/// The compare button of such a view.
template <typename Table>
void CompareData(const DataComparison<Table>& data) {
  constexpr int kMsgNothingThere = 6566;
  std::array<Table, 2> sides{};
  const auto fetch = [&](CompareSide side, CompareSource source, const std::string& path) {
    return FetchData(data, source, path, sides[side]);
  };
  const auto take = [&](const std::vector<int>& keys) {
    std::vector<CompareRefusal> refusals;
    for (const int key : keys) {
      if (!data.take(sides[kThere], key)) refusals.push_back({key, kMsgNothingThere});
    }
    sides[kHere] = data.held;
    data.show();
    return refusals;
  };
  const auto rows = [&](CompareList& list) { data.rows(sides, list); };
  ShowCompare({data.title_id, data.kind.File, fetch, rows, take});
}

}  // namespace tr7
