#pragma once

#include <algorithm>
#include <cassert>
#include <iterator>

#include "message_ids.h"  // made at build from res/messages.tsv

namespace tr7 {

/// True when the message table has a row of this number.
constexpr bool IsMessage(int id) {
  return std::binary_search(std::begin(kMessageIds), std::end(kMessageIds), id);
}

/// Stops the build where a number that the message table lacks stands in code.
inline void TheMessageTableLacksThisNumber() {}

/// The number of a text in the message table. One that stands in code is looked up at build.
class MsgId {
 public:
  /// No text.
  constexpr MsgId() = default;
  // Implicit, so that a text is named by its number alone.
  consteval MsgId(int id) : id_(id) {  // NOLINT(google-explicit-constructor)
    if (!IsMessage(id)) TheMessageTableLacksThisNumber();
  }
  /// The number `offset` rows of a series behind its first; the table must have it.
  static constexpr MsgId At(MsgId first, int offset) {
    MsgId id;
    id.id_ = first.id_ + offset;
    assert(IsMessage(id.id_));
    return id;
  }
  constexpr int Number() const { return id_; }
  constexpr explicit operator bool() const { return id_ != 0; }
  constexpr bool operator==(const MsgId&) const = default;

 private:
  int id_ = 0;
};

}  // namespace tr7
