#pragma once

#include <array>
#include <vector>

#include "prog/prog_step.h"

namespace tr7 {

/// What differs between a listing and the controller's program.
struct ProgSyogo {
  struct Step {
    int number;
    std::array<bool, kProgFields> differs;
  };
  std::vector<Step> steps;  ///< those with a difference alone
  bool IsEqual() const { return steps.empty(); }
};

/// Compares step by step. A step that one side lacks differs in all its fields.
ProgSyogo ProgDataVerifyProc(const std::vector<ProgStep>& here, const std::vector<ProgStep>& there);

/// Shows the differences, field by field.
void ShowProgSyogo(const ProgSyogo& found);

/// Wires the view of differences.
void InstallProgSyogokekka();

}  // namespace tr7
