#include "posi/posi_compare.h"

#include <algorithm>
#include <array>
#include <bitset>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/text_helpers.h"
#include "compare/compare.h"
#include "device/dev_setting.h"
#include "forms/frm_posi.h"
#include "posi/cell_rules.h"
#include "posi/file_devices.h"
#include "posi/posi_check.h"
#include "posi/posi_commands.h"
#include "posi/posi_edits.h"
#include "posi/posi_file_flows.h"
#include "posi/posi_grid_fill.h"
#include "posi/posi_grid_layout.h"
#include "posi/posi_lines.h"
#include "posi/posi_range.h"
#include "posi/posi_side.h"
#include "posi/posi_table.h"
#include "posi/posi_transfer.h"
#include "posi/unit_change.h"
#include "state/app_state.h"
#include "state/busy_scope.h"
#include "state/message_box.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kMsgTitle = 202, kMsgNone = 5335, kMsgData = 5336, kMsgWholePosition = 5337;
constexpr int kMsgAxis1 = 220;
constexpr int kMsgNothingThere = 6566, kMsgNotBehindLast = 6568, kMsgOutOfRange = 6569;
constexpr int kMsgOtherDevices = 6571, kMsgRange = 6572, kMsgNotRead = 7836;
constexpr int kMsgStopped = 425;

/// Column 0 stands for a whole position.
constexpr int kWholePosition = 0;
int KeyOf(int number, int col) { return number * kPosiColumns + col; }

/// A side, and where it is a file's the devices of it that are not those in use:
/// "AXIS1: QV- 50H-400".
struct Side : PosiSide {
  std::string other_devices;
};

struct Comparison {
  std::array<Side, 2> sides;
  std::size_t not_read = 0;  ///< positions of the controller that the other side does not hold

  bool Fetch(CompareSide side, CompareSource source, const std::string& path);
  void AddRows(int number, CompareList& list) const;
  void Rows(CompareList& list) const;
  std::string Note() const;
  std::optional<MsgId> Take(int key);
  std::optional<MsgId> TakePosition(int number);
  std::vector<CompareRefusal> Take(const std::vector<int>& keys);
};

// The sides.

bool FetchScreen(Side& side) {
  if (Check_flgdLineNo() != 0 || !CheckInPlace()) return false;
  TakePosiTable(side);
  return true;
}

bool FetchController(Side& side, const Side& other) {
  const WaitCursorScope wait_cursor;
  const Outcome outcome = ReadPosidataFromCt(other.Range());
  if (outcome == Outcome::Stopped) TellDone(kMsgStopped);
  if (outcome != Outcome::Done) return false;
  TakePosiStage(side, other.Holds);
  side.HasComments = false;
  return true;
}

/// Where the devices that a file names are others than those in use.
std::string OtherDevices() {
  std::string names;
  for (const OtherDevice& other : OtherDevicesOfFile()) {
    const std::string name = other.of_file.empty() ? Text(kMsgNone) : other.of_file;
    names += (names.empty() ? "" : ", ") + Text(MsgId::At(kMsgAxis1, other.axis)) + ": " + name;
  }
  return names;
}

bool FetchFile(Side& side, const std::string& path) {
  const DevSetteiKept kept;
  if (!ReadPosiFileToStage(path)) return false;
  TakePosiStage(side, std::bitset<kPosiSlots>().set());
  side.HasComments = true;
  side.other_devices = OtherDevices();
  return true;
}

bool Comparison::Fetch(CompareSide side, CompareSource source, const std::string& path) {
  sides[side].other_devices.clear();
  not_read = 0;  // the controller comes last
  switch (source) {
    case CompareSource::Screen:
      return FetchScreen(sides[side]);
    case CompareSource::Controller:
      not_read = kPosiMaxNo - sides[side == kHere ? kThere : kHere].Holds.count();
      return FetchController(sides[side], sides[side == kHere ? kThere : kHere]);
    default:
      return FetchFile(sides[side], path);
  }
}

// The rows.

/// Pulses beside millimetres that are too coarse to tell two positions apart.
void TellPulses(const PosiSide& side, int col, int number, std::string& text) {
  text += " (" + PlainDecimal(side.Values[col][number]) + ")";
}

void Comparison::AddRows(int number, CompareList& list) const {
  const auto& [here, there] = sides;
  for (int col = 1; col <= kComment; ++col) {
    if (!IsComparedColumn(col)) continue;
    if (col == kComment && !(here.HasComments && there.HasComments)) continue;
    const bool differs = PosiCellDiffers(here, there, col, number);
    if (!list.Counts(differs)) continue;
    CompareRow row;
    row.key = KeyOf(number, col);
    row.name = PosiColumnName(col);
    row.place = std::to_string(number);
    row.here = PosiSideText(here, col, number);
    row.there = differs ? PosiSideText(there, col, number) : row.here;
    row.differs = differs;
    if (differs && row.here == row.there) {
      TellPulses(here, col, number, row.here);
      TellPulses(there, col, number, row.there);
    }
    list.Add(std::move(row));
  }
}

void Comparison::Rows(CompareList& list) const {
  const auto& [here, there] = sides;
  const auto word = [](bool holds) { return Text(holds ? MsgId(kMsgData) : MsgId(kMsgNone)); };
  for (int n = 1; n <= kPosiMaxNo; ++n) {
    if (here.Holds[n] && there.Holds[n]) {
      AddRows(n, list);
    } else if ((here.Holds[n] || there.Holds[n]) && list.Counts(true)) {
      list.Add({KeyOf(n, kWholePosition), Text(kMsgWholePosition), std::to_string(n),
                word(here.Holds[n]), word(there.Holds[n]), true});
    }
  }
}

std::string Comparison::Note() const {
  const PosiRange here = sides[kHere].Range(), there = sides[kThere].Range();
  std::string note = Text(kMsgRange, std::to_string(std::min(here.first, there.first)),
                          std::to_string(std::max(here.last, there.last)));
  if (not_read > 0) note += "\n" + Text(kMsgNotRead, std::to_string(not_read));
  for (const Side& side : sides) {
    if (!side.other_devices.empty()) note += "\n" + Text(kMsgOtherDevices, side.other_devices);
  }
  return note;
}

// Taking over: into the grid by the rules of what is typed.

std::optional<MsgId> TakeCell(const PosiSide& there, int number, int col) {
  std::string text = PosiSideText(there, col, number);
  const int row = RowOfPosition(number);
  if (SetCellData(row, col, text) != 0) return MsgId(kMsgOutOfRange);
  frmPosi.flgdData.SetText(row, col, std::move(text));
  frmPosi.PosiChanged = True;
  return std::nullopt;
}

/// A position that the table lacks comes in behind its last one, the whole of it or not at all.
std::optional<MsgId> Comparison::TakePosition(int number) {
  const PosiSide& there = sides[kThere];
  if (!there.Holds[number]) return MsgId(kMsgNothingThere);
  for (int col = 1; col <= kComment; ++col) {
    const bool good = !IsComparedColumn(col) ||
                      ApplyCellRule(col, PosiSideText(there, col, number), AppState.CtMode);
    if (!good) return MsgId(kMsgOutOfRange);
  }
  if (number != AppState.PosiLastNo + 1 || !AppendLine()) return MsgId(kMsgNotBehindLast);
  for (int col = 1; col <= kComment; ++col) {
    if (IsComparedColumn(col)) TakeCell(there, number, col);
  }
  return std::nullopt;
}

std::optional<MsgId> Comparison::Take(int key) {
  const int number = key / kPosiColumns, col = key % kPosiColumns;
  return col == kWholePosition ? TakePosition(number) : TakeCell(sides[kThere], number, col);
}

std::vector<CompareRefusal> Comparison::Take(const std::vector<int>& keys) {
  const PosiEditStep step;
  std::vector<CompareRefusal> refusals;
  FG_HighSyoriStart();
  for (const int key : keys) {
    if (const auto reason = Take(key)) refusals.push_back({key, *reason});
  }
  FG_HighSyoriEnd();
  if (CheckInPlace()) TakePosiTable(sides[kHere]);
  return refusals;
}

}  // namespace

void ComparePositions() {
  EditCMD_Muko();
  const PosiGridOff grid_off;
  const WholeRangeAfter whole_range;
  const auto comparison = std::make_unique<Comparison>();
  Comparison& c = *comparison;
  ShowCompare({.title_id = kMsgTitle,
               .file = kPosiDataFile,
               .fetch = [&c](CompareSide side, CompareSource source,
                             const std::string& path) { return c.Fetch(side, source, path); },
               .rows = [&c](CompareList& list) { c.Rows(list); },
               .take = [&c](const std::vector<int>& keys) { return c.Take(keys); },
               .note = [&c] { return c.Note(); }});
}

}  // namespace tr7
