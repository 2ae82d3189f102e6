#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "base/msg_id.h"
#include "steps/file_steps.h"

namespace tr7 {

// The comparison of any two of: the data on screen, in the controller, in a file. One view serves
// every kind of data; a kind brings its sides in, tells its rows and takes over what the user
// chooses.

/// What may stand on a side of a comparison.
enum class CompareSource { Screen, Controller, File };

/// The two sides. What is taken over goes from `kThere` to `kHere`.
enum CompareSide : std::size_t { kHere, kThere };

/// One thing that both sides may hold.
struct CompareRow {
  int key = 0;        ///< the kind's own name of it
  std::string name;   ///< "VEL1"
  std::string place;  ///< axis or number
  std::string here, there;
  bool differs = false;
};

/// The rows of a comparison, in the kind's order, as far as they are to be shown.
class CompareList {
 public:
  explicit CompareList(bool equal_too) : equal_too_(equal_too) {}
  /// Counts one thing that was compared. True: its row is wanted, and `Add` follows.
  [[nodiscard]] bool Counts(bool differs) {
    ++compared_;
    differing_ += differs ? 1 : 0;
    return differs || equal_too_;
  }
  void Add(CompareRow row) { rows_.push_back(std::move(row)); }

  const std::deque<CompareRow>& Rows() const { return rows_; }
  /// The same, for good: the list is rid of them.
  std::deque<CompareRow> TakeRows() { return std::move(rows_); }
  int Compared() const { return compared_; }
  int Differing() const { return differing_; }

 private:
  bool equal_too_;
  int compared_ = 0, differing_ = 0;
  std::deque<CompareRow> rows_;
};

/// Why a row was not taken over.
struct CompareRefusal {
  int key;
  MsgId reason_id;
};

/// What a kind of data gives. All of it is called while `ShowCompare` runs.
struct CompareKind {
  MsgId title_id;
  DataFile file;
  /// Brings in what a side holds: the screen's data; the controller's, over a line that is open; or
  /// the file's. The controller comes last. False after the user has been told; the table on screen
  /// is as it was in either case.
  std::function<bool(CompareSide side, CompareSource source, const std::string& path)> fetch;
  /// Tells all rows of the two sides to the list.
  std::function<void(CompareList& list)> rows;
  /// Takes these rows over into the screen's data, as if the user had typed them, and into side
  /// `kHere`. Nothing is sent. What was not taken comes back.
  std::function<std::vector<CompareRefusal>(const std::vector<int>& keys)> take;
  /// What else there is to know of the comparison; may be unset.
  std::function<std::string()> note = {};
};

/// Shows the view for this kind of data, modal. The commands of all views are off meanwhile, so
/// nothing changes behind it. While the controller is read it stands switched off, with progress
/// and cancel button.
void ShowCompare(const CompareKind& kind);

}  // namespace tr7
