#include "prog/prog_compare.h"

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "prog/command_list.h"
#include "prog/prog_commands.h"
#include "prog/prog_flows.h"
#include "prog/prog_listing.h"
#include "prog/prog_sides.h"
#include "prog/prog_undo.h"
#include "state/message_box.h"
#include "state/text.h"

namespace tr7 {
namespace {

constexpr int kMsgTitle = 7200, kMsgChanged = 7201, kMsgInserted = 7202, kMsgRemoved = 7203;
constexpr int kMsgStep = 7204, kMsgProgramOfCt = 7205, kMsgCannotHold = 7206, kMsgNoRoom = 7207;
constexpr int kMsgStopped = 425;

class Comparison {
 public:
  explicit Comparison(ProgView& view) : view_(view) {}
  bool Fetch(CompareSide side, CompareSource source, const std::string& path);
  void Rows(CompareList& list);
  std::string Note() const;
  std::vector<CompareRefusal> Take(const std::vector<int>& keys);

 private:
  bool FetchController(ProgSide& side);
  bool FetchFile(ProgSide& side, const std::string& path) const;
  void Show(const std::vector<ProgCells>& steps);

  ProgView& view_;
  ProgSides sides_;
  int program_of_ct_ = 0;  ///< 0: the controller is on no side
};

// The sides.

bool Comparison::Fetch(CompareSide side, CompareSource source, const std::string& path) {
  if (source != CompareSource::Controller) program_of_ct_ = 0;  // that comes last
  switch (source) {
    case CompareSource::Screen:
      sides_[side] = SideOfCells(CellsOfListing(view_.flgdProg));
      return true;
    case CompareSource::Controller:
      return FetchController(sides_[side]);
    default:
      return FetchFile(sides_[side], path);
  }
}

bool Comparison::FetchController(ProgSide& side) {
  const auto program = AskProgNoOfCt();
  if (!program) return false;
  std::vector<ProgStep> steps;
  const Outcome outcome = ReadProgDataFromCt(*program, steps);
  if (outcome != Outcome::Done) {
    TellDone(kMsgStopped);
    return false;
  }
  program_of_ct_ = *program;
  side = SideOfSteps(steps);
  return true;
}

bool Comparison::FetchFile(ProgSide& side, const std::string& path) const {
  ProgStore store;
  if (!ProgFileIsRead(path, store)) return false;
  side = SideOfCells(store.ProgFileDA);
  return true;
}

// The rows. A row's key is its place among all of them.

std::string NumberOf(int at) { return at < 0 ? "-" : std::to_string(at + 1); }

MsgId NameOf(const AlignedSteps& row, bool differs) {
  if (row.here < 0) return kMsgInserted;
  if (row.there < 0) return kMsgRemoved;
  return differs ? MsgId(kMsgChanged) : MsgId(kMsgStep);
}

void Comparison::Rows(CompareList& list) {
  sides_.Align();
  int key = 0;
  for (const AlignedSteps& row : sides_.Rows()) {
    const bool differs = sides_.Differs(row);
    if (list.Counts(differs)) {
      const std::string here = NumberOf(row.here), there = NumberOf(row.there);
      list.Add({key, Text(NameOf(row, differs)), here == there ? here : here + " / " + there,
                sides_.Words(kHere, row), sides_.Words(kThere, row), differs});
    }
    ++key;
  }
}

std::string Comparison::Note() const {
  return program_of_ct_ == 0 ? "" : Text(kMsgProgramOfCt, std::to_string(program_of_ct_));
}

// Taking over.

/// The listing never loses its last line.
void Comparison::Show(const std::vector<ProgCells>& steps) {
  Grid& listing = view_.flgdProg;
  RememberForUndo(view_);
  PutListing(listing, steps.empty() ? std::vector<ProgCells>(1) : steps);
  listing.SelectCell(std::clamp(listing.Row, 1, ListingSteps(listing)), kProgCommand);
  view_.Store.ProgChanged = True;
}

/// All at once, since each insertion and removal moves the steps behind it.
std::vector<CompareRefusal> Comparison::Take(const std::vector<int>& keys) {
  const std::set<int> chosen(keys.begin(), keys.end());
  std::vector<CompareRefusal> refusals;
  std::vector<ProgCells> steps;
  const auto& rows = sides_.Rows();
  auto left = std::count_if(rows.begin(), rows.end(), [&](const AlignedSteps& row) {
    const bool goes = row.there < 0 && chosen.contains(static_cast<int>(&row - rows.data()));
    return row.here >= 0 && !goes;
  });
  for (int key = 0; key < static_cast<int>(rows.size()); ++key) {
    const AlignedSteps& row = rows[static_cast<std::size_t>(key)];
    const SideStep* here = sides_.StepAt(kHere, row);
    const bool taken = chosen.contains(key);
    if (taken && row.there < 0) continue;
    const auto cells = taken ? sides_.Taken(row) : std::nullopt;
    if (taken && !cells) refusals.push_back({key, kMsgCannotHold});
    if (cells && !here && left >= ListingLimit(view_)) {
      refusals.push_back({key, kMsgNoRoom});
    } else if (cells) {
      steps.push_back(*cells);
      left += here ? 0 : 1;
    } else if (here) {
      steps.push_back(here->cells);
    }
  }
  if (refusals.size() < keys.size()) Show(steps);
  sides_[kHere] = SideOfCells(CellsOfListing(view_.flgdProg));
  return refusals;
}

}  // namespace

void CompareProgram(ProgView& view) {
  if (ReadCommandLst() != 0) return;
  Comparison c(view);
  ShowCompare({.title_id = kMsgTitle,
               .file = kProgDataFile,
               .fetch = [&c](CompareSide side, CompareSource source,
                             const std::string& path) { return c.Fetch(side, source, path); },
               .rows = [&c](CompareList& list) { c.Rows(list); },
               .take = [&c](const std::vector<int>& keys) { return c.Take(keys); },
               .note = [&c] { return c.Note(); }});
}

}  // namespace tr7
