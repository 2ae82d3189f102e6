#pragma once

#include <optional>
#include <string>
#include <utility>

#include "forms/control.h"
#include "platform/doors.h"
#include "state/text.h"

namespace tr7 {

/// What a view held when it was closed, until it is taken back or the tool ends. A closed view
/// forgets its table and asks nothing, so no work dies of it.
template <typename Table>
class KeptAside {
 public:
  void Keep(const Table& table) {
    table_ = table;
    time_ = doors.pump->TimeOfDay().substr(0, 5);
  }
  std::optional<Table> Take() { return std::exchange(table_, std::nullopt); }

  /// Shows the button that brings it back, with its time, while there is something to bring.
  void Offer(CommandButton& button) const {
    constexpr int kMsgBringBack = 6489;
    button.Visible = table_.has_value();
    button.Caption = Text(kMsgBringBack, time_);
  }

 private:
  std::optional<Table> table_;
  std::string time_;
};

}  // namespace tr7
