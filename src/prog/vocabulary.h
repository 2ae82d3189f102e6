#pragma once

#include <cstdint>
#include <string_view>

#include "base/msg_id.h"
#include "prog/bands.h"

namespace tr7 {

/// What a plain number in an operand stands for.
enum class NumberKind {
  None,  ///< the column takes no plain number
  Position,
  Axes,
  Axis,
  Label,
  Subroutine,
  Program,
  Speed,
  AccTime,
  Seconds,
  Plain,
};

/// What a plain number beyond the range becomes when it is stored.
enum class Beyond {
  Passed,    ///< it goes on in thousandths, and the check alone judges it
  Dropped,   ///< 0
  Unscaled,  ///< it is stored as it stands: 1000 seconds read back as 1.000
};

/// How a stored number that is in no range and no band is shown.
enum class Unknown { Empty, Bare };

/// What one operand column of a command takes.
struct OperandRule {
  NumberKind number = NumberKind::None;
  std::int32_t low = 0, high = 0;  ///< range of the plain number, in thousandths
  unsigned refs = kNoRef;          ///< kinds of references
  Beyond beyond = Beyond::Passed;
  Unknown unknown = Unknown::Empty;
  bool or_none = false;  ///< 0 is right too: the column may be left empty
  bool whole = false;    ///< the check wants a whole number

  // Oddities that are meant so.
  std::int32_t scale = 1000;      ///< stored units for 1
  std::int32_t shown_low = -1;    ///< stored codes that are shown as a number where they are others
  std::int32_t shown_high = -1;   ///< than the range; -1: the range's own
  std::int32_t checked_low = -1;  ///< stored code from which the check passes; -1: the range's own
  bool three_decimals = false;    ///< shown with three decimals, and negative ones too

  constexpr bool IsUsed() const { return number != NumberKind::None || refs != kNoRef; }
  constexpr std::int32_t StoredLow() const { return low * (scale / 10) / 100; }
  constexpr std::int32_t StoredHigh() const { return high * (scale / 10) / 100; }
};

enum class ResultRule { None, Kept, Required };

/// One command of the controller.
struct CommandRule {
  std::string_view name;  ///< empty where the list alone names it
  OperandRule operand1 = {}, operand2 = {};
  bool condition = false;  ///< the column is kept; otherwise it encodes as 0
  ResultRule result = ResultRule::None;
  MsgId meaning_id;                              ///< what the command does; %1 and %2 are its name
  const OperandRule& Operand(int column) const;  ///< of `kProgOperand1` or `kProgOperand2`
};

inline constexpr int kCommands = 58;

/// The rule of a command code; null beyond the vocabulary.
const CommandRule* RuleOfCode(int code);
/// The rule of a command by its name; that of the commands which move axes by a pattern where only
/// the list has the name.
const CommandRule& RuleOfName(std::string_view name);

/// True when a command of this code keeps what stands in the column, an operand, the condition or
/// the result. The others encode as 0.
bool ColumnIsUsed(int code, int column);

}  // namespace tr7
