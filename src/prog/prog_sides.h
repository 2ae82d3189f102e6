#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "compare/compare.h"
#include "prog/prog_align.h"
#include "prog/prog_step.h"

namespace tr7 {

/// A step of a side of a comparison, in both forms where the one can be had from the other.
struct SideStep {
  ProgCells cells;
  std::optional<ProgStep> code;  ///< none where a text cannot be read
};

struct ProgSide {
  std::vector<SideStep> steps;
  bool has_comments = true;  ///< the controller holds none
};

/// Sides of steps as they are typed, and as the controller holds them. `CommandList` is read.
ProgSide SideOfCells(const std::vector<ProgCells>& steps);
ProgSide SideOfSteps(const std::vector<ProgStep>& steps);

/// Two programs side by side. Steps are the same where the controller holds the same of them, and
/// where their comments are the same if both sides have any.
class ProgSides {
 public:
  ProgSide& operator[](CompareSide side) { return sides_[side]; }
  /// Sets the steps side by side anew, after a side has changed.
  void Align();
  const std::vector<AlignedSteps>& Rows() const { return rows_; }

  const SideStep* StepAt(CompareSide side, const AlignedSteps& row) const;
  /// The text of a step on a side, and beside it what its texts do not tell apart; "(none)".
  std::string Words(CompareSide side, const AlignedSteps& row) const;
  bool Differs(const AlignedSteps& row) const;
  /// The texts of the step here with those of the step there where the two differ. None where a
  /// listing cannot hold the step there.
  std::optional<ProgCells> Taken(const AlignedSteps& row) const;

 private:
  bool ColumnDiffers(const SideStep& here, const SideStep& there, int column) const;
  std::string KeyOf(const SideStep& step) const;

  std::array<ProgSide, 2> sides_;
  std::vector<AlignedSteps> rows_;
};

}  // namespace tr7
