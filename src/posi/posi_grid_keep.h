#pragma once

#include <string>
#include <vector>

#include "base/axes.h"
#include "base/bool16.h"
#include "state/app_state.h"

namespace tr7 {

/// What the user has typed and no check has committed yet, over a rebuild of the grid from the
/// table: taken before, put back after. A change of the mode folds the way into the position text
/// or takes it out; an axis that was not in use then or is not now shows what the table holds.
class KeptEdits {
 public:
  KeptEdits();
  void PutBack() const;

 private:
  const std::string& Text(int row, int col) const;
  std::string NewText(int row, int col) const;
  std::string PosiText(int row, int axis) const;

  int rows_ = 0;  ///< 0: nothing was kept
  Bool16 program_mode_;
  AxisArray<Bool16> muko_;
  std::vector<std::string> texts_;
};

}  // namespace tr7
