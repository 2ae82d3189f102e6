#pragma once

#include <algorithm>
#include <cstddef>
#include <deque>
#include <string>

#include "forms/control.h"
#include "platform/doors.h"
#include "state/text.h"

namespace tr7 {

/// What a view held at its last closes, until it is taken back or the tool ends. A closed view
/// forgets its table and asks nothing, so that no work dies of it.
template <typename Table>
class KeptAside {
 public:
  /// Keeps the table, unless nothing was ever put into it. The oldest of many goes.
  void Keep(const Table& table) {
    if (table == Table{}) return;
    std::erase_if(kept_, [&](const Kept& kept) { return kept.table == table; });
    kept_.push_front({table, doors.pump->TimeOfDay()});
    if (kept_.size() > kMost) kept_.pop_back();
  }

  /// The newest one comes back, and what stood in its place is kept behind the others: pressing on
  /// goes round.
  void BringBack(Table& table) {
    if (kept_.empty()) return;
    const Table brought = kept_.front().table;
    kept_.pop_front();
    Keep(table);
    if (table != Table{}) std::rotate(kept_.begin(), kept_.begin() + 1, kept_.end());
    table = brought;
  }

  /// Shows the button that brings it back, with its time, while there is something to bring.
  void Offer(CommandButton& button) const {
    constexpr int kMsgBringBack = 6489;
    button.Visible = !kept_.empty();
    button.Caption = Text(kMsgBringBack, kept_.empty() ? std::string() : kept_.front().time);
  }

 private:
  static constexpr std::size_t kMost = 8;
  struct Kept {
    Table table;
    std::string time;
  };
  std::deque<Kept> kept_;
};

}  // namespace tr7
