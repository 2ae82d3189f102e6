#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "link/frame_log.h"

namespace tr7 {

// A row of the console is a frame of the line's record, known by its number. Words are made when
// they are asked for; nothing is kept of them.

/// It has gone out.
bool IsSent(FrameEvent event);
/// Something went wrong with it: a bad reply, an error, no answer, a repeated send.
bool IsFault(const FrameRing& ring, std::uint64_t number);

enum WireColumn : int { kNumber, kTime, kDirection, kBytes, kFrame, kWords };
inline constexpr int kWireColumns = 6;

/// A cell of the row; its words say what the frame says, and what is wrong with it.
std::string RowCell(const FrameRing& ring, std::uint64_t number, WireColumn column);
/// A line of text: all that a row shows, parted by tabs.
std::string RowText(const FrameRing& ring, std::uint64_t number);

struct WireFilter {
  enum class Way { Both, Sent, Received };
  std::string text;  ///< stands in the frame or in its words, capitals or not; empty: any
  Way way = Way::Both;
  bool hide_polls = false;  ///< what is wrong is shown all the same

  bool Passes(const FrameRing& ring, std::uint64_t number) const;
};

/// The text stands in the frame or in its words; capitals are the same as small letters.
bool RowHolds(const FrameRing& ring, std::uint64_t number, const std::string& text);

/// What the open console shows.
struct WireRowsRecord {
  WireFilter Filter;
  std::vector<std::uint64_t> Shown;  ///< numbers of the frames that pass, rising
  std::uint64_t Next = 0;            ///< the first frame that has not been looked at
  /// The record as it was when the user paused: it stays whole however long that takes.
  std::optional<FrameRing> Held;

  const FrameRing& Source() const { return Held ? *Held : FrameLog; }
  /// Looks at what is new; forgets what the record no longer holds. How many rows went.
  int Follow();
  /// Looks at everything anew.
  void Rebuild();
  /// The next shown row with the text from a row (from 0) on, or back, around the ends; nothing:
  /// none.
  std::optional<std::size_t> Find(const std::string& text, std::size_t from, bool backwards) const;
};
extern WireRowsRecord WireRows;

}  // namespace tr7
