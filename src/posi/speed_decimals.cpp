#include "posi/speed_decimals.h"

#include <cmath>

#include "base/text_helpers.h"
#include "posi/posi_table.h"
#include "state/app_state.h"
#include "state/axes_in_use.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kMsgNote = 6365;
constexpr int kMsgListSeparator = 6350;
constexpr int kMostListed = 10;

bool HasDecimals(double value) { return value != std::trunc(value); }

bool LineHasDecimals(int number) {
  for (const int axis : AxesInUse()) {
    const int col = AxisBase(axis) + kVel;
    if (HasDecimals(ValueOf(PosiTable.PosiRec[col][number]))) return true;
  }
  return false;
}

}  // namespace

std::string SpeedDecimalsNote(int col, const std::string& text) {
  const bool speed = AxisOfColumn(col) >= 0 && FieldOfColumn(col) == kVel;
  if (!speed || !HasDecimals(Val(text))) return {};
  return Text(kMsgNote, Trim(text), PlainDecimal(std::trunc(Val(text))));
}

std::string PositionsWithSpeedDecimals() {
  std::string list;
  int listed = 0;
  for (int n = AppState.PosiFirstNo; n <= AppState.PosiLastNo; ++n) {
    if (n < 1 || !LineHasDecimals(n)) continue;
    if (listed == kMostListed) return list + Text(kMsgListSeparator) + "...";
    list += (listed++ == 0 ? "" : Text(kMsgListSeparator)) + std::to_string(n);
  }
  return list;
}

}  // namespace tr7
