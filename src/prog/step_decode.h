#pragma once

#include <cstdint>
#include <string>

#include "prog/prog_step.h"

namespace tr7 {

/// A numeric cell as it is shown: prefix and value, joined.
struct StepCell {
  std::string prefix, value;
  bool bare = false;  ///< typed, it would mean something else: the stored number, or a negative one
  std::string Text() const { return prefix + value; }
};

/// Decodes the operand, condition or result column of a step, whoever holds it. Empty where the
/// command does not use the column or is beyond the vocabulary.
StepCell StepCellToText(const ProgStep& step, int column);

StepCell CondToText(std::int32_t code);
StepCell ResultToText(std::int32_t code);

}  // namespace tr7
