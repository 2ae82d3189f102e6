#pragma once

#include <string_view>

#include "sim/controller.h"
#include "tests/fleet/voyage.h"

namespace tr7 {

/// Axes, mode and devices: what the PC believes of the machine, or what the controller reports.
/// A device counts by what the controller is compared by; that of an axis not in use is none.
struct MachineState {
  AxisArray<bool> in_use{};
  bool program_mode = false;
  AxisArray<std::string> devices{};
  bool operator==(const MachineState&) const = default;
};

MachineState MachineOfPc();
MachineState MachineOfCt(const qvr7sim::Controller& controller);

/// The position table as the user sees it, and the pulses behind it.
struct TableState {
  int first = 0, last = 0;
  std::string name;
  bool changed = false;
  std::vector<std::string> texts;    ///< of the body, line by line
  std::vector<std::int32_t> pulses;  ///< of the axes in use
  MachineState machine;              ///< which the table is shown for
  bool in_mm = false;
  int file_calls = 0;  ///< of the file door so far: a save is one way to change a name
  /// True when nothing of this table is lost in `later`: the same in every cell, or, where the
  /// machine or the unit changed in between, in every line and comment.
  bool IsKeptIn(const TableState& later) const;
};

TableState TableNow(const Voyage& voyage);

using Cells = std::vector<std::string>;

/// The frames that write a family of the controller's cells, and store them.
struct CellFrames {
  const char* write;
  std::size_t digits;  ///< of a cell's number; with one digit they count from 0
  const char* commit;
  std::size_t unit = 0;  ///< where a unit of zeros ends a cell: its digits
};

/// What a write makes of the controller's memory, from the moment that this is made.
class CellWrite {
 public:
  CellWrite(Voyage& voyage, const CellFrames& frames);

  /// Every cell is the old one, or the new where the frame that stores it went out; all are the
  /// same of the two, and the new where the user was told of the end. Of a write that the user has
  /// stopped nobody knows whether its last frame was heard.
  void Check(bool told, bool stopped = false) const;
  /// True when nothing is written that is not stored, but for what was so before.
  bool IsWhole() const;

 private:
  Cells Now(bool committed) const;
  Cells New() const;
  std::string CellOf(std::string_view digits) const;

  Voyage& voyage_;
  const CellFrames& frames_;
  Cells committed_, written_;
};

}  // namespace tr7
