#pragma once

#include <algorithm>
#include <cstddef>
#include <deque>
#include <string>
#include <vector>

#include "forms/control.h"
#include "platform/doors.h"
#include "state/message_box.h"
#include "state/text.h"

namespace tr7 {

/// What a view held at its last closes, until it is taken back or the tool ends. A closed view
/// forgets its table and asks nothing, so that no work dies of it.
template <typename Table>
class KeptAside {
 public:
  /// Keeps the table, unless nothing was ever put into it. The oldest of many goes.
  /// `saved`: a file or the controller holds it too.
  void Keep(const Table& table, bool saved) {
    if (table == Table{}) return;
    std::erase_if(kept_, [&](const Kept& kept) { return kept.table == table; });
    kept_.push_front({table, saved, doors.pump->TimeOfDay().substr(0, 5)});
    if (kept_.size() > kMost) kept_.pop_back();
  }

  /// The newest one comes back, and what stood in its place is kept behind the others: pressing on
  /// goes round. `saved` is the table that a file or the controller holds too.
  void BringBack(Table& table, Table& saved) {
    if (kept_.empty()) return;
    const Kept brought = kept_.front();
    kept_.pop_front();
    Keep(table, table == saved);
    if (table != Table{}) std::rotate(kept_.begin(), kept_.begin() + 1, kept_.end());
    table = brought.table;
    if (brought.saved) saved = table;
  }

  /// What is kept and stands nowhere else, the oldest first.
  std::vector<const Table*> Unsaved() const {
    std::vector<const Table*> tables;
    for (auto kept = kept_.rbegin(); kept != kept_.rend(); ++kept) {
      if (!kept->saved) tables.push_back(&kept->table);
    }
    return tables;
  }

  /// The end of the tool loses what is `unsaved` in the open view of this name, and what is kept
  /// and stands nowhere else: true when the user, asked about either, would rather stay.
  bool RefusesToEnd(bool unsaved, MsgId name) const {
    constexpr int kMsgLost = 6491;
    for (const Kept& kept : kept_) unsaved = unsaved || !kept.saved;
    return unsaved && !AskToLose(Text(kMsgLost, Text(name)));
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
    bool saved;
    std::string time;
  };
  std::deque<Kept> kept_;
};

}  // namespace tr7
