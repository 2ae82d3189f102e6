#include "compare/compare.h"

#include <algorithm>
#include <array>
#include <deque>
#include <utility>

#include "compare/compare_reading.h"
#include "forms/frm_compare.h"
#include "platform/doors.h"
#include "session/session.h"
#include "state/app_state.h"
#include "state/busy_scope.h"
#include "state/message_box.h"
#include "state/text.h"
#include "state/text_file.h"
#include "state/views.h"
#include "steps/transfer_scope.h"

namespace tr7 {
namespace {

constexpr int kMsgTitle = 5321, kMsgScreen = 5324, kMsgController = 5230, kMsgFile = 5231;
constexpr int kMsgName = 5329, kMsgPlace = 5330, kMsgNamedFile = 5334;
constexpr int kMsgOpenHere = 5341, kMsgOpenThere = 5342;
constexpr int kMsgCount = 6560, kMsgNoDifference = 6561, kMsgChoose = 6562, kMsgSameSides = 6563;
constexpr int kMsgTakeAll = 6564, kMsgNotTaken = 6565, kMsgTaken = 6570;
constexpr int kMsgNotIn = 7832, kMsgNoFile = 7833, kMsgNoLine = 7834, kMsgGivenUp = 5970;

constexpr int kTitleRow = 0;
constexpr int kNameCol = 0, kPlaceCol = 1, kHereCol = 2, kThereCol = 3;

Grid& RowsGrid() { return frmCompare.flgdCompare; }

CompareSource SourceIn(const ComboBox& choice) {
  return static_cast<CompareSource>(choice.ListIndex);
}

/// One showing of the view, from its first question to its end.
class Comparison {
 public:
  explicit Comparison(const CompareKind& kind) : kind_(kind) {}
  void Run();

 private:
  struct Side {
    CompareSource source;
    std::string path;
    std::string Name() const;
  };

  void Wire();
  void OfferSides();
  void AskToCompare();
  void BringIn();
  bool AskForFiles();
  bool Fetch();
  bool FetchOverLine();
  bool IsEmptyFor(const std::string& reason);
  bool Holds(CompareSource source) const;
  void Forget();
  void ShowRows();
  void ShowState();
  /// What stands in a row of the grid's body.
  const CompareRow& RowAt(int row) const { return rows_[row - RowsGrid().FixedRows]; }
  bool Differs(int row) const { return RowAt(row).differs; }
  std::string CellText(int row, int col) const;
  void TakeSelected();
  void TakeAll();
  void Take(const std::vector<int>& keys);
  std::string RowWords(int key) const;

  const CompareKind& kind_;
  HandlersForOnce handlers_;
  std::array<Side, 2> sides_{};
  bool compared_ = false;  ///< both sides are in
  int count_ = 0, differing_ = 0;
  std::deque<CompareRow> rows_;  ///< on show
};

std::string Comparison::Side::Name() const {
  switch (source) {
    case CompareSource::Screen:
      return Text(kMsgScreen);
    case CompareSource::Controller:
      return Text(kMsgController);
    default:
      return Text(kMsgNamedFile, FileTitle(path));
  }
}

void Comparison::Run() {
  Wire();
  OfferSides();
  Forget();
  ShowViewModal(frmCompare);
  Forget();
}

void Comparison::Wire() {
  FrmCompare& f = frmCompare;
  handlers_.Set(f.Load, [this] {
    frmCompare.Caption = Text(kMsgTitle, Text(kind_.title_id));
    ShowState();
  });
  for (ComboBox* choice : {&f.comboHere, &f.comboThere}) {
    handlers_.Set(choice->Click, [this] { Forget(); });
  }
  handlers_.Set(f.cmdCompare.Click, [this] { AskToCompare(); });
  handlers_.Set(f.chkEqualToo.Click, [this] {
    if (compared_) ShowRows();
  });
  handlers_.Set(f.flgdCompare.BodyText, [this](int row, int col) { return CellText(row, col); });
  handlers_.Set(f.flgdCompare.IsMarked, [this](int row, int col) {
    return frmCompare.chkEqualToo.Value && col >= kHereCol && Differs(row);
  });
  handlers_.Set(f.flgdCompare.CellToolTip,
                [](int row, int col) { return RowsGrid().Text(row, col); });
  handlers_.Set(f.flgdCompare.CanEdit, [](int, int) { return false; });
  handlers_.Set(f.flgdCompare.Choose, [] { frmCompare.cmdTake.Press(); });
  handlers_.Set(f.cmdTake.Click, [this] { TakeSelected(); });
  handlers_.Set(f.cmdTakeAll.Click, [this] { TakeAll(); });
  handlers_.Set(f.cmdClose.Click, [] { frmCompare.Visible = false; });
}

/// The screen against the controller, or offline against a file, is what is asked for most.
void Comparison::OfferSides() {
  FrmCompare& f = frmCompare;
  for (ComboBox* choice : {&f.comboHere, &f.comboThere}) {
    choice->Clear();
    for (const MsgId id : {MsgId(kMsgScreen), MsgId(kMsgController), MsgId(kMsgFile)}) {
      choice->AddItem(Text(id), static_cast<int>(choice->List.size()));
    }
  }
  f.comboHere.ListIndex = static_cast<int>(CompareSource::Screen);
  f.comboThere.ListIndex =
      static_cast<int>(AppState.Offline ? CompareSource::File : CompareSource::Controller);
  f.chkEqualToo.Value = false;
}

void Comparison::AskToCompare() {
  const CompareSource here = SourceIn(frmCompare.comboHere);
  const CompareSource there = SourceIn(frmCompare.comboThere);
  if (here == there && here != CompareSource::File) return Tell(kMsgSameSides);
  sides_ = {Side{here, {}}, Side{there, {}}};
  BringIn();
  doors.forms->SetFocus(compared_ ? static_cast<Control&>(RowsGrid()) : frmCompare.cmdCompare);
}

bool Comparison::Holds(CompareSource source) const {
  return std::any_of(sides_.begin(), sides_.end(),
                     [source](const Side& side) { return side.source == source; });
}

/// What was compared before is gone: where a side does not come in, there is nothing to take from.
void Comparison::BringIn() {
  Forget();
  compared_ = AskForFiles() && (Holds(CompareSource::Controller) ? FetchOverLine() : Fetch());
  if (!compared_) return ShowState();
  frmCompare.lblNote.Caption = kind_.note ? kind_.note() : std::string();
  ShowRows();
  RowsGrid().SelectCell(RowsGrid().FixedRows, kNameCol);
}

bool Comparison::AskForFiles() {
  for (const CompareSide side : {kHere, kThere}) {
    if (sides_[side].source != CompareSource::File) continue;
    const auto path =
        AskOpenPath(kind_.file, side == kHere ? MsgId(kMsgOpenHere) : MsgId(kMsgOpenThere));
    if (!path || path->empty()) return IsEmptyFor(Text(kMsgNoFile));
    sides_[side].path = *path;
  }
  return true;
}

bool Comparison::FetchOverLine() {
  const CompareReading reading;
  const TransferScope transfer;
  if (ConnectOrOpenPort()) return Fetch();
  return IsEmptyFor(AppState.CancelRequested ? Text(kMsgGivenUp) : Text(kMsgNoLine));
}

/// The list says why it is empty, beside what a box has told. False, for its caller to return.
bool Comparison::IsEmptyFor(const std::string& reason) {
  frmCompare.lblNote.Caption = reason;
  return false;
}

bool Comparison::Fetch() {
  const auto of_controller = [this](CompareSide side) {
    return sides_[side].source == CompareSource::Controller;
  };
  const auto fetch = [this](CompareSide side) {
    return kind_.fetch(side, sides_[side].source, sides_[side].path) ||
           IsEmptyFor(Text(kMsgNotIn, sides_[side].Name()));
  };
  // What the controller is asked for may follow from the other side.
  return of_controller(kHere) ? fetch(kThere) && fetch(kHere) : fetch(kHere) && fetch(kThere);
}

void Comparison::Forget() {
  compared_ = false;
  count_ = differing_ = 0;
  rows_.clear();
  Grid& grid = RowsGrid();
  grid.SetRows(grid.FixedRows);
  for (int col = 0; col < grid.Cols(); ++col) grid.SetText(kTitleRow, col, {});
  frmCompare.lblNote.Caption.clear();
  ShowState();
}

void Comparison::ShowRows() {
  CompareList list(frmCompare.chkEqualToo.Value);
  kind_.rows(list);
  count_ = list.Compared();
  differing_ = list.Differing();
  Grid& grid = RowsGrid();
  grid.SetText(kTitleRow, kNameCol, Text(kMsgName));
  grid.SetText(kTitleRow, kPlaceCol, Text(kMsgPlace));
  grid.SetText(kTitleRow, kHereCol, sides_[kHere].Name());
  grid.SetText(kTitleRow, kThereCol, sides_[kThere].Name());
  rows_ = list.TakeRows();
  grid.SetRows(grid.FixedRows + static_cast<int>(rows_.size()));
  ShowState();
}

std::string Comparison::CellText(int row, int col) const {
  const CompareRow& shown = RowAt(row);
  switch (col) {
    case kNameCol:
      return shown.name;
    case kPlaceCol:
      return shown.place;
    case kHereCol:
      return shown.here;
    default:
      return shown.there;
  }
}

void Comparison::ShowState() {
  FrmCompare& f = frmCompare;
  const std::string count = std::to_string(count_);
  f.lblCount.Caption = !compared_        ? Text(kMsgChoose)
                       : differing_ == 0 ? Text(kMsgNoDifference, count)
                                         : Text(kMsgCount, std::to_string(differing_), count);
  const bool may_take =
      compared_ && sides_[kHere].source == CompareSource::Screen && differing_ > 0;
  f.cmdTake.Enabled = f.cmdTakeAll.Enabled = may_take;
  const auto asks = [](const ComboBox& choice) {
    return SourceIn(choice) == CompareSource::Controller;
  };
  f.cmdCompare.Connects = asks(f.comboHere) || asks(f.comboThere);
}

void Comparison::TakeSelected() {
  const Grid& grid = RowsGrid();
  const auto [first, last] = std::minmax(grid.Row, grid.RowSel);
  std::vector<int> keys;
  for (int row = std::max(first, grid.FixedRows); row <= last; ++row) {
    if (Differs(row)) keys.push_back(RowAt(row).key);
  }
  if (!keys.empty()) Take(keys);
}

void Comparison::TakeAll() {
  if (!AskYesToLose(Text(kMsgTakeAll, std::to_string(differing_)))) return;
  std::vector<int> keys;
  for (const CompareRow& row : rows_) {
    if (row.differs) keys.push_back(row.key);
  }
  Take(keys);
}

/// The row that follows the last one taken is the current one: one key takes them one by one.
void Comparison::Take(const std::vector<int>& keys) {
  const std::vector<CompareRefusal> refusals = kind_.take(keys);
  std::string words = Text(kMsgTaken, std::to_string(keys.size() - refusals.size()));
  if (!refusals.empty()) {
    const CompareRefusal& first = refusals.front();
    const std::string reason = RowWords(first.key) + ": " + Text(first.reason_id);
    words += "\n" + Text(kMsgNotTaken, std::to_string(refusals.size()), reason);
    doors.forms->Beep();
  }
  const int row = std::min(RowsGrid().Row, RowsGrid().RowSel);
  ShowRows();
  RowsGrid().SelectCell(std::min(row, RowsGrid().Rows() - 1), kNameCol);
  frmCompare.lblNote.Caption = words;
}

std::string Comparison::RowWords(int key) const {
  const auto of_key = [key](const CompareRow& row) { return row.key == key; };
  const auto at = std::find_if(rows_.begin(), rows_.end(), of_key);
  return at == rows_.end() ? std::string() : at->name + " " + at->place;
}

}  // namespace

void ShowCompare(const CompareKind& kind) {
  const CommandsOff commands_off;
  const BusyScope busy;
  Comparison(kind).Run();
}

}  // namespace tr7
