#include "para/para_mm.h"

#include <optional>

#include "base/text_helpers.h"
#include "device/unit_conversion.h"

namespace tr7 {
namespace {

double Lead(int axis) { return Val(frmParameta2.txtAxisLead[axis].Text); }
double Ppr(int axis) { return Val(frmParameta2.txtAxisPulse[axis].Text); }

/// What the mm field shows for this many pulses; empty without a conversion. A lead of 0 would make
/// every length 0.
std::string MmTextOfPulses(int axis, double pulses) {
  if (Lead(axis) == 0) return {};
  const auto mm = PulseToMm(Lead(axis), Ppr(axis), pulses);
  return mm ? ParaMmText(*mm) : std::string();
}

std::optional<double> PulsesOfMm(int axis, double mm, MmTie tie) {
  if (tie == MmTie::ToEven) return MmToPulse(Lead(axis), Ppr(axis), mm);
  const auto snapped = SnapMmToPulse(Lead(axis), SnapMode(), Ppr(axis), mm);
  if (!snapped) return std::nullopt;
  return MmToPulse(Lead(axis), Ppr(axis), *snapped);
}

bool IsEmpty(const TextBox& box) { return Trim(box.Text).empty(); }

/// True when the mm field is what the pulse field comes to: then there is nothing to round, and a
/// pulse shorter than 0.001 mm keeps its count.
bool Agree(const ParaMmField& field, int axis) {
  const TextBox& pulses = field.PulseBox(axis);
  return !IsEmpty(pulses) && !IsEmpty(field.MmBox(axis)) &&
         Trim(MmTextOfPulses(axis, Val(pulses.Text))) == Trim(field.MmBox(axis).Text);
}

}  // namespace

std::string ParaMmText(double mm) {
  const std::string text = FormatMm(mm);
  return CharCount(text) < kParaMmChars ? RightAlignText(text, kParaMmChars) : text;
}

bool HasLeadAndPulse(int axis) {
  return !IsEmpty(frmParameta2.txtAxisLead[axis]) && !IsEmpty(frmParameta2.txtAxisPulse[axis]);
}

void ShowMmOfPulses(const ParaMmField& field, int axis) {
  const TextBox& pulses = field.PulseBox(axis);
  field.MmBox(axis).Text = IsEmpty(pulses) ? std::string() : MmTextOfPulses(axis, Val(pulses.Text));
}

void ShowPulsesOfMm(const ParaMmField& field, int axis) {
  if (Agree(field, axis)) return;
  const auto pulses = PulsesOfMm(axis, CutMmText(field.MmBox(axis).Text), MmTie::ToEven);
  if (pulses) field.PulseBox(axis).Text = PlainDecimal(*pulses);
}

bool RoundParaMm(const ParaMmField& field, int axis, MmTie tie) {
  if (Agree(field, axis)) return true;
  const auto pulses = PulsesOfMm(axis, CutMmText(field.MmBox(axis).Text), tie);
  const std::string mm = pulses ? MmTextOfPulses(axis, *pulses) : std::string();
  if (mm.empty()) return false;
  field.PulseBox(axis).Text = PlainDecimal(*pulses);
  field.MmBox(axis).Text = mm;
  return true;
}

}  // namespace tr7
