#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "base/bool16.h"
#include "base/indexed_array.h"

namespace tr7 {

inline constexpr int kGroups = 99;

/// Start and end of each group as position numbers, by group number 1 to 99; entry 0 is unused.
struct GrpTableRecord {
  using Numbers = IndexedArray<std::int16_t, std::size_t{kGroups} + 1>;
  GrpTableRecord() {
    GrpStart.fill(1);
    GrpEnd.fill(1);
  }
  Numbers GrpStart;
  Numbers GrpEnd;
  bool operator==(const GrpTableRecord&) const = default;
};

extern GrpTableRecord GrpTable;
/// Where data from the controller or a file lands first.
extern GrpTableRecord GrpStage;

/// What a file or the controller holds too: as last read, written, opened or saved.
extern GrpTableRecord GrpSaved;

void GrpStageCommit();     ///< stage to table
void GrpStageFromTable();  ///< table to stage

/// What the group flows leave for one another.
struct GrpFlagsRecord {
  std::int16_t GrpCheckFirst = 1;  ///< the groups that check and compare walk
  std::int16_t GrpCheckLast = kGroups;
  Bool16 GrpSyogoNg;             ///< the compare found a difference
  std::string GrpSyogoList;      ///< numbers of the groups that differ, "," behind each
  Bool16 GrpFileRefused;         ///< the file that was read last is no group file
  std::string GrpFilePath;       ///< the file that the table is from; empty: none
  std::string GrpFileFaultText;  ///< why a file could not be read or saved
};

extern GrpFlagsRecord GrpFlags;

/// Both numbers of the group lie in 1 to 999, the start not behind the end.
bool GroupIsGood(int n);

/// Both values of every group within 1 to 999, and no start behind its end. 0 good, 1 bad.
int GrpData_Check();

/// Compares table and stage: `GrpSyogoNg`, `GrpSyogoList`.
void GrpStageCompare();

}  // namespace tr7
