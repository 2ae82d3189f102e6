#include "data/grp_table.h"

namespace tr7 {
namespace {

constexpr int kLowestNo = 1, kHighestNo = 999;

bool InRange(int number) { return number >= kLowestNo && number <= kHighestNo; }

bool GroupDiffers(int n) {
  return GrpTable.GrpStart[n] != GrpStage.GrpStart[n] || GrpTable.GrpEnd[n] != GrpStage.GrpEnd[n];
}

}  // namespace

GrpTableRecord GrpTable;
GrpTableRecord GrpStage;
GrpTableRecord GrpSaved;
GrpFlagsRecord GrpFlags;

void GrpStageCommit() { GrpTable = GrpStage; }
void GrpStageFromTable() { GrpStage = GrpTable; }

bool GroupIsGood(int n) {
  const int start = GrpTable.GrpStart[n], end = GrpTable.GrpEnd[n];
  return InRange(start) && InRange(end) && start <= end;
}

int GrpData_Check() {
  int result = 0;
  for (int n = GrpFlags.GrpCheckFirst; n <= GrpFlags.GrpCheckLast; ++n) {
    if (!GroupIsGood(n)) result = 1;
  }
  return result;
}

void GrpStageCompare() {
  GrpFlags.GrpSyogoList.clear();
  for (int n = GrpFlags.GrpCheckFirst; n <= GrpFlags.GrpCheckLast; ++n) {
    if (GroupDiffers(n)) GrpFlags.GrpSyogoList += std::to_string(n) + ",";
  }
  GrpFlags.GrpSyogoNg = !GrpFlags.GrpSyogoList.empty();
}

}  // namespace tr7
