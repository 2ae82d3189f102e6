#pragma once

#include <string>
#include <vector>

#include "sim/setup.h"

namespace qvr7sim {

/// Cells of text that are written first and stored for good by a commit.
class Bank {
 public:
  Bank(std::size_t cells, const std::string& content)
      : written_(cells, content), committed_(cells, content) {}

  const std::string& Written(int cell) const { return written_[cell]; }
  const std::string& Committed(int cell) const { return committed_[cell]; }
  void Write(int cell, std::string content) { written_[cell] = std::move(content); }
  /// Cells first to last, both included.
  void Commit(int first, int last);
  void CommitAll() { committed_ = written_; }
  /// What a loss of power leaves.
  void Revert() { written_ = committed_; }
  int size() const { return static_cast<int>(written_.size()); }

 private:
  std::vector<std::string> written_;
  std::vector<std::string> committed_;
};

/// All that the controller keeps. Cells of positions, groups and macros carry their number; cell 0
/// stays unused.
struct Memory {
  explicit Memory(const Setup& setup);

  void Revert();
  /// Maximum pulses, lead and pulses per turn from the device block of an axis (index from 0),
  /// as written; 0 where the block holds no number.
  int MaxPulses(int axis) const;
  int Lead(int axis) const;
  int Ppr(int axis) const;
  /// Zone bound 1 or 2 and the in-position width of an axis in pulses, as written.
  int ZoneBound(int axis, int bound) const;
  bool ZoneEnabled(int axis) const;
  int InPositionWidth(int axis) const;
  /// Whether a pulse generator is fitted to the axis, as written.
  bool HasPulseGenerator(int axis) const;
  /// A place that a program puts into a position is stored at once, as written.
  bool StoresPput() const;
  /// The axis stops at the ends of its stroke by itself, as written.
  bool SoftLimit(int axis) const;
  /// The axis carries the one actuator that is faster than its motor's rule.
  bool IsFastDevice(int axis) const;
  /// Mode and mask as committed in block 0.
  Mode CommittedMode() const;
  unsigned CommittedMask() const;

  Bank positions;  ///< 60 digits
  Bank blocks;     ///< 32 characters
  Bank groups;     ///< start and end, 3 digits each
  Bank macros;     ///< 16 pairs of digits
  Bank system;     ///< 32 digits
  Bank programs;   ///< 19 digits a step, up to the first empty step
};

/// Cell of a block character "0" to "9", "A" to "D"; -1 for others.
int BlockIndex(char block);
/// Cells of the second and the third block of an axis (index from 0).
inline int SecondBlock(int axis) { return 3 + 3 * axis; }
inline int DeviceBlock(int axis) { return 4 + 3 * axis; }

}  // namespace qvr7sim
