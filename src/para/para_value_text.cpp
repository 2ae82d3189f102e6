#include "para/para_value_text.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "base/text_helpers.h"
#include "para/para_fields.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kMsgAxisCounts = 6061;  ///< the entry for one axis; those for more follow

template <typename Field>
const Field* FieldOfRow(const std::vector<Field>& fields, int row) {
  const auto found = std::find_if(fields.begin(), fields.end(),
                                  [row](const Field& field) { return field.Row == row; });
  return found == fields.end() ? nullptr : &*found;
}

/// What a number is called in the view; empty: it is told as it is.
std::string EntryText(int row, int value) {
  if (row == kRowOneAxis) {
    const int count = AxisCountOfMask(value);
    return count == 0 ? std::string() : Text(MsgId::At(kMsgAxisCounts, count - 1));
  }
  if (const auto* list = FieldOfRow(ParaListFields(), row)) {
    const bool has_entry = value >= 0 && value < static_cast<int>(list->Entries.size());
    return has_entry ? Text(list->Entries[value]) : std::string();
  }
  if (const auto* option = FieldOfRow(ParaOptionFields(), row)) {
    if (value != 0 && value != 1) return {};
    return Text((frmParameta2.*option->Place)[value == option->FirstValue ? 0 : 1].Tag);
  }
  return {};
}

}  // namespace

std::string ParaValueText(const ParamSetRecord& set, int row, int axis) {
  if (row == kRowActuator) {
    if (Trim(set.ActSize[axis]).empty()) return {};
    return Trim(JoinActuator(set.ActSize[axis], set.ActSpeed[axis], set.ActStroke[axis]));
  }
  const double value = std::nearbyint(ParaValue(set, row, axis));
  const std::string entry = EntryText(row, static_cast<int>(value));
  return entry.empty() ? PlainDecimal(value) : entry;
}

}  // namespace tr7
