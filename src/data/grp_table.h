#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace tr7 {

inline constexpr int kGroups = 99;

/// Start and end of each group as position numbers, by group number 1 to 99; entry 0 is unused.
struct GrpTableRecord {
  using Numbers = std::array<std::int16_t, std::size_t{kGroups} + 1>;
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

}  // namespace tr7
