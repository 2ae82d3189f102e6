#include "wire/wire_fields.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>

#include "base/axes.h"
#include "base/text_helpers.h"
#include "monitor/io_points.h"
#include "para/para_blocks.h"
#include "prog/prog_listing.h"
#include "prog/vocabulary.h"
#include "state/text.h"
#include "wire/wire_bytes.h"

namespace tr7 {
namespace {

constexpr int kNone = 5606, kAxis1 = 220, kStep = 5339;

/// Words that grow, and the characters that are left to be told.
struct Told {
  std::string words;
  std::string_view rest;
  const std::string& subject;
  int mask = kAllAxes;  ///< of the last field of axes

  std::string_view Take(std::size_t width) {
    const std::string_view taken = rest.substr(0, width);
    rest.remove_prefix(taken.size());
    return taken;
  }
  void Add(const std::string& text) {
    if (text.empty()) return;
    if (!words.empty()) words += ' ';
    words += text;
  }
  void Add(const std::string& label, const std::string& value) {
    Add(label);
    Add(value);
  }
};

std::string AxisName(int axis) { return Text(MsgId::At(kAxis1, axis)); }

std::string LabelOf(const WireField& field) {
  return field.label ? Text(field.label, field.name) : field.name;
}

/// Decimal; what is no number as it stands.
std::string NumberText(std::string_view digits) {
  const std::int64_t value = HexValue(digits);
  return value < 0 ? VisibleBytes(digits) : std::to_string(value);
}

std::string WayPositionText(std::string_view digits) {
  constexpr std::int64_t kPulses = 1 << 18;
  const std::int64_t value = HexValue(digits);
  if (value < 0) return VisibleBytes(digits);
  return "WAY " + std::to_string(value / kPulses) + " POSI " + std::to_string(value % kPulses);
}

std::string ValueText(std::string_view digits, bool thousandths) {
  constexpr double kThousand = 1000.0;
  const std::int64_t word = HexValue(digits);
  if (word < 0) return VisibleBytes(digits);
  const auto value = static_cast<std::int32_t>(static_cast<std::uint32_t>(word));
  return thousandths ? FormatMm(value / kThousand) : std::to_string(value);
}

void TellAxes(Told& told, std::string_view digit) {
  const std::int64_t mask = HexValue(digit);
  if (mask < 0) return told.Add(VisibleBytes(digit));
  told.mask = static_cast<int>(mask) & kAllAxes;
  if (told.mask == 0) told.Add(Text(kNone));
  for (const int axis : AxisList(told.mask)) told.Add(AxisName(axis));
}

void TellPerAxis(Told& told) {
  for (int axis = 0; axis < kAxes && !told.rest.empty(); ++axis) {
    told.Add(AxisName(axis), VisibleBytes(told.Take(1)));
  }
}

/// The axes were named by the mask; each gets its number. A little below zero is told so.
void TellPositions(Told& told) {
  constexpr std::int64_t kSpan = 1 << 20, kSmallNegative = 0xF0000;
  constexpr std::size_t kWidth = 5;
  told.words.clear();
  for (const int axis : AxisList(told.mask)) {
    if (told.rest.empty()) return;
    const std::string_view digits = told.Take(kWidth);
    const std::int64_t value = HexValue(digits);
    const bool below = value > kSmallNegative && value < kSpan;
    told.Add(AxisName(axis), below ? std::to_string(value - kSpan) : NumberText(digits));
  }
}

template <typename Points>
void TellTerminals(Told& told, const Points& points, std::string_view digits) {
  bool any = false;
  for (const auto& point : points) {
    const auto place = static_cast<std::size_t>(point.digit);
    const std::int64_t bits = place < digits.size() ? HexValue(digits.substr(place, 1)) : -1;
    if (bits < 0 || (bits >> point.bit & 1) == 0) continue;
    told.Add(PointName(point));
    any = true;
  }
  if (!any) told.Add(Text(kNone));
}

/// A step as its listing shows it; one that the listing has no texts for as it stands.
std::string StepText(std::string_view digits) {
  constexpr std::array<std::size_t, kProgFields> kWidths{2, 6, 6, 3, 2};
  ProgStep step;
  std::size_t at = 0;
  for (std::size_t i = 0; i < kWidths.size(); at += kWidths[i++]) {
    const std::string_view field = digits.substr(std::min(at, digits.size()), kWidths[i]);
    const std::int64_t value = field.size() == kWidths[i] ? HexValue(field) : -1;
    if (value < 0) return VisibleBytes(digits);
    step.Fields[i] = static_cast<std::int32_t>(value);
  }
  ProgCells cells = DecodeStep(step);
  // The list of commands may not have been read yet.
  const CommandRule* rule = RuleOfCode(step[kProgCommand]);
  if (cells[kProgCommand].empty() && rule) cells[kProgCommand] = rule->name;
  std::string text;
  for (const std::string& cell : cells.Texts) {
    if (!cell.empty()) text += (text.empty() ? "" : " ") + cell;
  }
  return text.empty() ? VisibleBytes(digits) : text;
}

void TellSteps(Told& told) {
  constexpr std::size_t kDigits = 19;
  const bool several = told.rest.size() > kDigits;
  for (int number = 1; !told.rest.empty(); ++number) {
    if (several) told.Add(Text(kStep, std::to_string(number)) + ":");
    told.Add(StepText(told.Take(kDigits)));
  }
}

void TellTasks(Told& told) {
  for (int task = 1; !told.rest.empty(); ++task) {
    told.Add(std::to_string(task) + ":" + NumberText(told.Take(2)));
  }
}

void TellPairs(Told& told) {
  while (!told.rest.empty()) told.Add(VisibleBytes(told.Take(2)));
}

/// The parameters that the block holds, by their names.
void TellParaBlock(Told& told) {
  constexpr std::size_t kDataAt = 5;
  constexpr int kFirstOfAxes = 2, kBlocksOfAxis = 3;
  const std::string_view data = told.Take(told.rest.size());
  const std::int64_t block = told.subject.size() == 1 ? HexValue(told.subject) : -1;
  if (block < 0) return told.Add(VisibleBytes(data));
  if (block >= kFirstOfAxes) {
    const auto axis = static_cast<int>((block - kFirstOfAxes) / kBlocksOfAxis);
    if (axis < kAxes) told.Add(AxisName(axis));
  }
  for (int row = 1; row <= kParaRows; ++row) {
    for (int axis = 0; axis < (IsAxisRow(row) ? kAxes : 1); ++axis) {
      const ParaPlace place = PlaceOfPara(row, axis);
      if (place.Block != block || place.At - kDataAt >= data.size()) continue;
      const std::string_view digits = data.substr(place.At - kDataAt, place.Width);
      const bool texts = row == kRowActuator;
      told.Add(ParaRowName(row), texts ? VisibleBytes(digits) : NumberText(digits));
    }
  }
}

/// The slots that the block holds, from its first one on.
void TellTuningBlock(Told& told) {
  struct Block {
    int first;
    std::size_t width;
  };
  constexpr std::array<Block, 7> kBlocks{
      {{1, 4}, {9, 4}, {17, 2}, {33, 2}, {49, 4}, {57, 4}, {65, 4}}};
  const std::int64_t number = HexValue(told.subject);
  const bool known = number >= 0 && number < static_cast<std::int64_t>(kBlocks.size());
  if (!known) return told.Add(VisibleBytes(told.Take(told.rest.size())));
  const Block& block = kBlocks[static_cast<std::size_t>(number)];
  for (int slot = block.first; !told.rest.empty(); ++slot) {
    told.Add(std::to_string(slot) + ":" + NumberText(told.Take(block.width)));
  }
}

void Tell(Told& told, const WireField& field) {
  switch (field.kind) {
    case FieldKind::Word:
      return told.Add(LabelOf(field));
    case FieldKind::Axis:
      return told.Add((told.words.empty() ? "" : "/ ") + AxisName(field.width - 1));
    case FieldKind::Number:
      return told.Add(LabelOf(field), NumberText(told.Take(field.width)));
    case FieldKind::Digits:
      return told.Add(LabelOf(field), VisibleBytes(told.Take(field.width)));
    case FieldKind::WayPosition:
      return told.Add(WayPositionText(told.Take(field.width)));
    case FieldKind::Signed:
    case FieldKind::Thousandths:
      return told.Add(LabelOf(field),
                      ValueText(told.Take(field.width), field.kind == FieldKind::Thousandths));
    case FieldKind::Axes:
      return TellAxes(told, told.Take(field.width));
    case FieldKind::PerAxis:
      return TellPerAxis(told);
    case FieldKind::Inputs:
      return TellTerminals(told, InputPoints(), told.Take(field.width));
    case FieldKind::Outputs:
      return TellTerminals(told, OutputPoints(), told.Take(field.width));
    case FieldKind::Positions:
      return TellPositions(told);
    case FieldKind::Steps:
      return TellSteps(told);
    case FieldKind::Tasks:
      return TellTasks(told);
    case FieldKind::Pairs:
      return TellPairs(told);
    case FieldKind::ParaBlock:
      return TellParaBlock(told);
    case FieldKind::TuningBlock:
      return TellTuningBlock(told);
  }
}

}  // namespace

std::string FieldWords(std::span<const WireField> fields, std::string_view characters,
                       const std::string& subject) {
  Told told{{}, characters, subject};
  for (const WireField& field : fields) {
    if (told.rest.empty() && field.kind != FieldKind::Word) break;
    Tell(told, field);
  }
  if (!told.rest.empty()) told.Add(VisibleBytes(told.rest));
  return told.words;
}

}  // namespace tr7
