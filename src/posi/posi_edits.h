#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "posi/posi_table.h"

namespace tr7 {

// What the user has done to the lines on show, edit by edit. What shows the table anew forgets it;
// another unit alone does not.

/// A line of the grid as it stood. Lines that no edit touched are shared by the shots.
struct PosiLine {
  std::array<std::string, kPosiColumns> cells;  ///< [column]; 0 unused
  std::int16_t source = 0;                      ///< as in `SourceNo`
};

/// The whole grid before an edit, and where the cursor stood.
struct PosiShot {
  std::vector<std::shared_ptr<const PosiLine>> lines;
  std::int16_t first = 0;  ///< number of the first line; 0: there is none
  int row = 0, col = 0;
  int commits = 0;      ///< how often the grid had gone into the table by then
  bool changed = true;  ///< no file holds this
  bool mm = false;      ///< the unit of the lengths
  /// Of the step between this and what came behind it, or ahead of it where it was undone: nothing
  /// but the unit is another.
  bool unit_step = false;
};

struct PosiUndoRecord {
  std::vector<PosiShot> done, undone;  ///< the last one at the end
  int commits = 0;
  int steps_open = 0;
};

extern PosiUndoRecord PosiUndo;

/// Edits that are kept at most.
inline constexpr std::size_t kMostPosiEdits = 200;

/// Before one edit: what the grid shows can be brought back. Within a step it is part of that one.
void RememberPosiEdit();

/// Several edits that come and go as one. A step that has changed nothing is none.
class PosiEditStep {
 public:
  PosiEditStep();
  ~PosiEditStep();
  PosiEditStep(const PosiEditStep&) = delete;
  PosiEditStep& operator=(const PosiEditStep&) = delete;
};

/// Before the grid shows its lines in the other unit, which is a step, too, but keeps what was
/// undone. There and back is none.
void RememberPosiUnit();

void ForgetPosiEdits();

/// What the grid shows is in a file now, and nothing else of what can be brought back, whatever its
/// unit is.
void PosiEditsAreSaved();

/// The grid as it is; lines at head and end that stand in `like` too are shared with it.
PosiShot PosiShotOf(const PosiShot& like);
/// Keeps a shot, and lets the oldest go where there are too many.
void KeepPosiShot(std::vector<PosiShot>& shots, PosiShot shot);
/// The line of the grid, counted from 0, shows these texts.
bool ShowsPosiLine(int line, const PosiLine& of);

}  // namespace tr7
