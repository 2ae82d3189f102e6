#include "prog/prog_sides.h"

#include <algorithm>
#include <map>

#include "prog/command_list.h"
#include "prog/prog_hint.h"
#include "prog/prog_listing.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kMsgNone = 5335, kMsgBlank = 5340;

/// "MVP 1 _ /I1 O1 "comment"": an empty cell in front of a filled one shows as "_".
std::string WordsOf(const ProgCells& cells) {
  std::string words, gap;
  for (int column = kProgCommand; column <= kProgResult; ++column) {
    if (column > kProgCommand) gap += ' ';
    if (cells[column].empty()) {
      gap += '_';
    } else {
      words += gap + cells[column];
      gap.clear();
    }
  }
  if (!cells[kProgComment].empty()) words += "  \"" + cells[kProgComment] + "\"";
  return words.empty() ? Text(kMsgBlank) : words;
}

}  // namespace

ProgSide SideOfCells(const std::vector<ProgCells>& steps) {
  ProgSide side;
  for (const ProgCells& cells : steps) {
    ProgStep code;
    const bool good = EncodeCells(cells, code) == 0;
    side.steps.push_back({cells, good ? std::optional(code) : std::nullopt});
  }
  return side;
}

ProgSide SideOfSteps(const std::vector<ProgStep>& steps) {
  ProgSide side;
  side.has_comments = false;
  for (const ProgStep& step : steps) side.steps.push_back({DecodeStep(step), step});
  return side;
}

std::string ProgSides::KeyOf(const SideStep& step) const {
  std::string key;
  for (int column = kProgCommand; column <= kProgResult; ++column) {
    key += step.code ? std::to_string((*step.code)[column]) : "\"" + step.cells[column];
    key += '\t';
  }
  const bool comments = sides_[kHere].has_comments && sides_[kThere].has_comments;
  return comments ? key + step.cells[kProgComment] : key;
}

void ProgSides::Align() {
  std::map<std::string, int> known;
  std::array<std::vector<StepLook>, 2> looks;
  for (const CompareSide side : {kHere, kThere}) {
    for (const SideStep& step : sides_[side].steps) {
      const int whole = known.emplace(KeyOf(step), static_cast<int>(known.size())).first->second;
      const int command = step.code ? (*step.code)[kProgCommand] : -1;
      looks[side].push_back({whole, command});
    }
  }
  rows_ = AlignSteps(looks[kHere], looks[kThere]);
}

const SideStep* ProgSides::StepAt(CompareSide side, const AlignedSteps& row) const {
  const int at = side == kHere ? row.here : row.there;
  return at < 0 ? nullptr : &sides_[side].steps[static_cast<std::size_t>(at)];
}

bool ProgSides::ColumnDiffers(const SideStep& here, const SideStep& there, int column) const {
  if (column == kProgComment) {
    const bool comments = sides_[kHere].has_comments && sides_[kThere].has_comments;
    return comments && here.cells[column] != there.cells[column];
  }
  if (here.code && there.code) return (*here.code)[column] != (*there.code)[column];
  return here.cells[column] != there.cells[column];
}

bool ProgSides::Differs(const AlignedSteps& row) const {
  const SideStep *here = StepAt(kHere, row), *there = StepAt(kThere, row);
  return !here || !there || KeyOf(*here) != KeyOf(*there);
}

std::string ProgSides::Words(CompareSide side, const AlignedSteps& row) const {
  const SideStep* step = StepAt(side, row);
  if (!step) return Text(kMsgNone);
  std::string words = WordsOf(step->cells);
  const SideStep* other = StepAt(side == kHere ? kThere : kHere, row);
  if (!other || !step->code || WordsOf(other->cells) != words) return words;
  for (int column = kProgCommand; column <= kProgResult; ++column) {
    if (!ColumnDiffers(*step, *other, column)) continue;
    words += "  (" + ProgHeading(column) + ": " + std::to_string((*step->code)[column]) + ")";
  }
  return words;
}

std::optional<ProgCells> ProgSides::Taken(const AlignedSteps& row) const {
  const SideStep *here = StepAt(kHere, row), *there = StepAt(kThere, row);
  ProgCells cells = here ? here->cells : there->cells;
  // What a column means depends on the command.
  const bool other = here && ColumnDiffers(*here, *there, kProgCommand);
  for (int column = kProgCommand; here && column <= kProgComment; ++column) {
    const bool whole = other && column <= kProgResult;
    if (whole || ColumnDiffers(*here, *there, column)) cells[column] = there->cells[column];
  }
  ProgStep code;
  const bool good = EncodeCells(cells, code) == 0;
  const bool said =
      there->code ? good && code == *there->code : SeekCmdCode(cells[kProgCommand]) >= 0;
  return said ? std::optional(cells) : std::nullopt;
}

}  // namespace tr7
