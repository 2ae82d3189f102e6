#include "data/grp_kind.h"

#include <array>
#include <limits>
#include <string>

#include "data/data_compare.h"
#include "data/grp_commands.h"
#include "data/grp_file.h"
#include "data/grp_show.h"
#include "data/grp_table.h"
#include "state/message_box.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kMsgTitle = 6490, kMsgGroup = 5338, kMsgNone = 5335;
/// Start of a group that a file leaves out.
constexpr std::int16_t kLeftOut = std::numeric_limits<std::int16_t>::min();

bool IsLeftOut(const GrpTableRecord& table, int n) { return table.GrpStart[n] == kLeftOut; }

std::string NameOf(int n) { return Text(kMsgGroup) + " " + std::to_string(n); }

std::string RangeText(const GrpTableRecord& table, int n) {
  if (IsLeftOut(table, n)) return Text(kMsgNone);
  return std::to_string(table.GrpStart[n]) + " - " + std::to_string(table.GrpEnd[n]);
}

std::string BadGroups() {
  std::string lines;
  for (int n = 1; n <= kGroups; ++n) {
    if (!GroupIsGood(n)) lines += NameOf(n) + ": " + RangeText(GrpTable, n) + "\n";
  }
  return lines;
}

bool AllAreGood() {
  StoreShownGroups();
  GrpFlags.GrpCheckFirst = 1;
  GrpFlags.GrpCheckLast = kGroups;
  return GrpData_Check() == 0;
}

bool MayBeCompared() {
  if (AllAreGood()) return true;
  MsgBoxWithDetails(TwoLines(820, 821), BadGroups());
  ShowFirstBadGroup();
  return false;
}

bool MayBeSent() {
  if (AllAreGood()) return true;
  MsgBoxWithDetails(TwoLines(820, 836) + "\n" + TwoLines(837, 838), BadGroups());
  ShowFirstBadGroup();
  return false;
}

void TakeStage() {
  GrpStageCommit();
  GrpShow();
}

bool IsChanged() { return GrpTable != GrpTableRecord{} && GrpTable != GrpSaved; }

std::string Differing() {
  GrpStageCompare();
  return GrpFlags.GrpSyogoList;
}

void Rows(const std::array<GrpTableRecord, 2>& sides, CompareList& list) {
  const auto& [here, there] = sides;
  for (int n = 1; n <= kGroups; ++n) {
    const bool differs = here.GrpStart[n] != there.GrpStart[n] || here.GrpEnd[n] != there.GrpEnd[n];
    if (!list.Counts(differs)) continue;
    list.Add(
        {n, Text(kMsgGroup), std::to_string(n), RangeText(here, n), RangeText(there, n), differs});
  }
}

std::string Details() { return LinesOfDifferences(GrpTable, GrpStage, Rows, NameOf); }

bool Take(const GrpTableRecord& there, int n) {
  if (IsLeftOut(there, n)) return false;
  GrpTable.GrpStart[n] = there.GrpStart[n];
  GrpTable.GrpEnd[n] = there.GrpEnd[n];
  return true;
}

}  // namespace

const DataKind& GrpKind() {
  static const DataKind kind{.StoreShown = StoreShownGroups,
                             .MayBeCompared = MayBeCompared,
                             .MayBeSent = MayBeSent,
                             .StageFromTable = GrpStageFromTable,
                             .TakeStage = TakeStage,
                             .IsChanged = IsChanged,
                             .MarkSaved = [] { GrpSaved = GrpTable; },
                             .Differing = Differing,
                             .Details = Details,
                             .ReadFromCt = ReadGrpFromCt,
                             .WriteToCt = WriteGrpToCt,
                             .ReadFile = GrpFileRead,
                             .FileWasRefused = [] { return bool(GrpFlags.GrpFileRefused); },
                             .SaveFile = GrpFileSave,
                             .FileFault = &GrpFlags.GrpFileFaultText,
                             .Path = &GrpFlags.GrpFilePath,
                             .FailureEndsSession = true,
                             .AskRead = 835,
                             .AskWrite = 839,
                             .FileToOpen = {FileKind::Group, 828, "grp", 833},
                             .File = {FileKind::Group, 831, "grp", 833},
                             .OpenTitle = 827,
                             .SaveTitle = 832,
                             .VerifyTitle = 834,
                             .PrintTitle = 830,
                             .FileNotRead = 484,
                             .FileNotSaved = 18,
                             .Equal = 826,
                             .DifferHead = 823,
                             .DifferList = 824,
                             .DifferName = 825};
  return kind;
}

void CompareGroups() {
  GrpTableRecord left_out;
  left_out.GrpStart.fill(kLeftOut);
  CompareData<GrpTableRecord>(
      {GrpKind(), kMsgTitle, GrpTable, GrpStage, left_out, Rows, Take, GrpShow});
}

}  // namespace tr7
