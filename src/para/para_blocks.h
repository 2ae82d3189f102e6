#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "base/axes.h"
#include "device/ct_blocks.h"
#include "para/param_set.h"
#include "state/app_state.h"

namespace tr7 {

// The controller keeps its parameters in 14 blocks of 32 characters: two common ones, then three
// for each axis. docs/protocol.md shows the same table.

/// The data of all blocks, by block index; empty: not read.
using ParaBlocks = std::array<std::string, kParaBlocks>;

/// The blocks that hold something for these axes, in rising order.
std::vector<int> ParaBlocksFor(const AxisList& axes);

/// Where a row stands: block index, position in the reply counted from 1, width in characters.
/// Numbers are hexadecimal. ACTUATOR is texts and the stroke: see the encoder.
struct ParaPlace {
  int Block;
  std::size_t At;
  std::size_t Width;
  bool operator==(const ParaPlace&) const = default;
};
/// Place of a row (1 to 34); a row with one value for the controller has it for any axis.
ParaPlace PlaceOfPara(int row, int axis);

/// A row of an axis, or of the controller at axis 0.
struct ParaCell {
  int Row;
  int Axis;
};

/// Puts the rows of `set` into blocks that were read; all other digits, also those of axes that do
/// not count, stay. The first cell whose place cannot hold its value, or nothing.
std::optional<ParaCell> EncodePara(const ParamSetRecord& set, const AxisList& axes,
                                   ParaBlocks& blocks);

/// The blocks as a table, zeros for axes that do not count. False, and the table as it was, when a
/// field is no number or a value does not fit its row.
bool DecodePara(const ParaBlocks& blocks, const AxisList& axes, ParaTableRecord& table);

/// The controller's name of a row: "LS SERCH TIMER".
const char* ParaRowName(int row);
/// The same with the axis from 1 behind a row that has one value per axis: "OFFSET(1)".
std::string ParaCellName(const ParaCell& cell);

}  // namespace tr7
