#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "base/axes.h"
#include "base/bool16.h"
#include "base/seq_file.h"
#include "state/app_state.h"

namespace tr7 {

/// What the user has typed and no check has committed yet, over a rebuild of the grid from the
/// table: taken before, put back after. A change of the mode folds the way into the position text
/// or takes it out; an axis that was not in use then or is not now shows what the table holds.
class KeptEdits {
 public:
  /// Which of the two a position in millimetres keeps when its device has changed. One that the
  /// user has edited keeps its millimetres in either case, and one that had none its pulses.
  enum class Unedited { Millimetres, Pulses };

  KeptEdits();
  void PutBack(Unedited keeps) const;

  /// Numbers of the table that the lines were filled from, each once, rising.
  std::vector<int> Sources() const;
  int Lines() const;
  bool InProgramMode() const { return program_mode_; }

  // Over the end of the tool: what was written can be read into any other.
  void Write(SeqWriter& out) const;
  /// False where that is damaged: nothing is kept then.
  [[nodiscard]] bool Read(SeqReader& items);

 private:
  const std::string& Text(int row, int col) const;
  std::string NewText(int row, int col, Unedited keeps) const;
  std::string PosiText(int row, int axis, Unedited keeps) const;
  bool IsUnedited(int row, int axis) const;
  double Held(int row, int col) const;
  bool ReadLayout(SeqReader& items);
  bool ReadLines(SeqReader& items);

  int rows_ = 0;  ///< 0: nothing was kept
  Bool16 program_mode_;
  AxisArray<Bool16> muko_;
  AxisArray<double> lead_, ppr_;
  std::vector<std::int16_t> source_;
  std::vector<std::string> texts_;
};

}  // namespace tr7
