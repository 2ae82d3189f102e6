#include "para/para_mm_typing.h"

#include <cmath>
#include <string>

#include "base/text_helpers.h"
#include "device/unit_conversion.h"
#include "para/para_hint.h"
#include "para/para_mm.h"
#include "state/message_box.h"

namespace tr7 {
namespace {

constexpr const char* kMmChars = "0123456789.";
constexpr double kMaxPulses = 262143;

bool IsEmpty(const TextBox& box) { return Trim(box.Text).empty(); }

bool IsZone(const ParaMmField& field) { return field.Row != kRowStroke; }

const TextBox& StrokeBox(int axis) { return frmParameta2.txtAxisMmStroke[axis]; }

double WholeStroke(int axis) { return std::trunc(Val(StrokeBox(axis).Text)); }

/// Nothing while the length has no bound yet.
std::string RangeOf(const ParaMmField& field, int axis) {
  if (IsZone(field)) {
    return IsEmpty(StrokeBox(axis)) ? "" : ParaRangeText("0", PlainDecimal(WholeStroke(axis)));
  }
  if (!HasLeadAndPulse(axis)) return {};
  const auto longest = PulseToMm(Val(frmParameta2.txtAxisLead[axis].Text),
                                 Val(frmParameta2.txtAxisPulse[axis].Text), kMaxPulses);
  return longest ? ParaRangeText("0", FormatMm(*longest)) : std::string();
}

/// What the length needs before it can be taken; a message and an empty field without it.
bool HasInputs(const ParaMmField& field, int axis) {
  if (!HasLeadAndPulse(axis)) {
    MsgBox(TwoLines(694, 695));
  } else if (IsZone(field) && IsEmpty(StrokeBox(axis))) {
    MsgBox(TwoLines(696, 697));
  } else {
    return true;
  }
  EmptyParaField(field.MmBox(axis));
  return false;
}

bool IsInRange(const ParaMmField& field, int axis) {
  if (!IsZone(field)) return true;
  const double mm = CutMmText(field.MmBox(axis).Text);
  return mm >= 0 && mm <= WholeStroke(axis);
}

void MmLeft(const ParaMmField& field, int axis) {
  if (!IsLiveAxis(axis)) return;
  TextBox& box = field.MmBox(axis);
  if (!IsEmpty(box) && HasInputs(field, axis) &&
      !(IsInRange(field, axis) && RoundParaMm(field, axis, MmTie::AsUserChose))) {
    field.PulseBox(axis).Text.clear();
    RefuseParaField(box, ParaFieldName(box, true, axis), RangeOf(field, axis));
    return;
  }
  ParaFieldLeft();
}

/// A length that is deleted leaves no pulses behind.
void MmTyped(const ParaMmField& field, int axis) {
  if (IsEmpty(field.MmBox(axis))) field.PulseBox(axis).Text.clear();
}

void InstallField(const ParaMmField& field, int axis) {
  TextBox& box = field.MmBox(axis);
  box.MaxLength = kParaMmChars;
  box.AllowedChars = kMmChars;
  box.Change = [&field, axis] { MmTyped(field, axis); };
  box.GotFocus = [&box, &field, axis] { ParaFieldEntered(box, RangeOf(field, axis)); };
  box.LostFocus = [&field, axis] { MmLeft(field, axis); };
}

}  // namespace

void LengthsFollowScale(int axis) {
  if (!HasLeadAndPulse(axis)) return;
  for (const ParaMmField& field : ParaMmFields()) {
    if (IsEmpty(field.MmBox(axis))) {
      ShowMmOfPulses(field, axis);
    } else {
      ShowPulsesOfMm(field, axis);
    }
  }
}

void InstallParaMmTyping() {
  for (const ParaMmField& field : ParaMmFields()) {
    for (int axis = 0; axis < kAxes; ++axis) {
      InstallField(field, axis);
      if (!IsZone(field)) {
        field.PulseBox(axis).Change = [&field, axis] { ShowMmOfPulses(field, axis); };
      }
    }
  }
}

}  // namespace tr7
