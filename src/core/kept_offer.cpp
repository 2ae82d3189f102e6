#include "core/kept_offer.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "core/keep_work.h"
#include "forms/frm_kept_work.h"
#include "platform/doors.h"
#include "state/files_here.h"
#include "state/for_mode.h"
#include "state/kept_work.h"
#include "state/message_box.h"
#include "state/status_panel.h"
#include "state/text.h"
#include "state/text_file.h"
#include "state/views.h"

namespace tr7 {
namespace {

constexpr int kMsgLoses = 7810, kMsgDamaged = 7811, kMsgUnreadable = 7817;
constexpr int kMsgOtherMode = 7812, kMsgBack = 7814, kMsgNotBack = 7815;
constexpr std::size_t kFileLimit = 16u << 20;

struct Left {
  std::string path;
  KeptWork work;
  const KeepKind* kind;
};

enum class Decision { Later, TakeBack, Discard };

/// Rows of the list, and what is to become of them.
struct Answer {
  Decision decision = Decision::Later;
  int first = 0, last = -1;  ///< index from 0
};

std::string NameOf(const Left& left) {
  const std::string name = FileTitle(left.work.name);
  return Text(left.kind->NameId) + (name.empty() ? "" : " - " + name);
}

// What is there.

const KeepKind* KindOf(const KeptWork& work) {
  const auto& kinds = KeepKinds();
  const auto found = std::find_if(kinds.begin(), kinds.end(),
                                  [&](const KeepKind& kind) { return kind.Word == work.kind; });
  return found == kinds.end() ? nullptr : &*found;
}

/// Out of the way of every later start, and still there for whoever can make something of it.
void SetAside(const std::string& path) {
  const std::string aside = path + ".damaged";
  const bool moved = doors.files->Rename(path, aside) == FileFault::None;
  MsgBox(Text(kMsgDamaged, FileTitle(path), moved ? aside : path));
}

std::vector<Left> ReadLeft() {
  std::vector<Left> all;
  for (const std::string& path : doors.work->TakeLeft()) {
    std::string bytes;
    const FileFault fault = doors.files->Read(path, kFileLimit, bytes);
    if (fault != FileFault::None && fault != FileFault::TooLarge) {
      MsgBox(Text(kMsgUnreadable, FileTitle(path), FileFaultWords(fault, path)));
      continue;
    }
    auto work = WorkOfBytes(bytes);
    const KeepKind* kind = work ? KindOf(*work) : nullptr;
    kind ? all.push_back({path, std::move(*work), kind}) : SetAside(path);
  }
  const auto order = [](const Left& left) { return std::pair(left.kind, left.work.when); };
  std::stable_sort(all.begin(), all.end(),
                   [&](const Left& a, const Left& b) { return order(a) < order(b); });
  return all;
}

// The question.

void ShowList(const std::vector<Left>& all) {
  constexpr MsgId kHeads[] = {7806, 7807, 7808, 7809};
  Grid& list = frmKeptWork.flgdKept;
  list.SetRows(static_cast<int>(all.size()) + 1);
  for (int col = 0; col < list.Cols(); ++col) list.SetText(0, col, Text(kHeads[col]));
  for (int row = 1; row < list.Rows(); ++row) {
    const Left& left = all[static_cast<std::size_t>(row) - 1];
    const MsgId mode = ModeNameId(left.work.mode);
    list.SetText(row, 0, Text(left.kind->NameId));
    list.SetText(row, 1, FileTitle(left.work.name));
    list.SetText(row, 2, mode ? Text(mode) : std::string());
    list.SetText(row, 3, left.work.when);
  }
  list.Select(1, 0, list.Rows() - 1, list.Cols() - 1);
}

Answer Ask(const std::vector<Left>& all) {
  FrmKeptWork& f = frmKeptWork;
  Answer answer;
  HandlersForOnce handlers;
  const auto close = [&](Decision decision, int first, int last) {
    answer = {decision, first - 1, last - 1};
    frmKeptWork.Visible = false;
  };
  const auto selected = [&](Decision decision) {
    const auto [first, last] = std::minmax(frmKeptWork.flgdKept.Row, frmKeptWork.flgdKept.RowSel);
    if (first >= 1) close(decision, first, last);
  };
  handlers.Set(f.Load, [&] { ShowList(all); });
  handlers.Set(f.flgdKept.CanEdit, [](int, int) { return false; });
  handlers.Set(f.flgdKept.CellToolTip, [&](int row, int col) {
    return row >= 1 && col == 1 ? all[row - 1].work.name : "";
  });
  handlers.Set(f.cmdTakeBackAll.Click,
               [&] { close(Decision::TakeBack, 1, frmKeptWork.flgdKept.Rows() - 1); });
  handlers.Set(f.cmdTakeBack.Click, [&] { selected(Decision::TakeBack); });
  handlers.Set(f.flgdKept.Choose, [] { frmKeptWork.cmdTakeBack.Press(); });
  handlers.Set(f.cmdDiscard.Click, [&] {
    if (AskToLose(Text(kMsgLoses))) selected(Decision::Discard);
  });
  handlers.Set(f.cmdLater.Click, [] { frmKeptWork.Visible = false; });
  ShowViewModal(f);
  return answer;
}

// What becomes of it.

/// True where it is back: unsaved work of this tool.
bool TakeBack(const Left& left) {
  if (!FitsMode(left.work.mode)) {
    MsgBox(Text(kMsgOtherMode, NameOf(left), Text(ModeNameId(left.work.mode))));
    return false;
  }
  if (left.kind->TakeBack(left.work)) {
    FileWasShown(left.work.path, left.work.mark);
    return true;
  }
  MsgBox(Text(kMsgNotBack, NameOf(left)));
  return false;
}

/// What was left goes only once the tool has kept it as its own: the power may go right now.
void TakeBackAll(const std::vector<Left>& all) {
  std::vector<std::string> back;
  for (const Left& left : all) {
    if (TakeBack(left)) back.push_back(left.path);
  }
  if (back.empty()) return;
  if (KeepNow()) {
    for (const std::string& path : back) doors.files->Remove(path);
  }
  TellInStatusPanel(Text(kMsgBack));
}

}  // namespace

void OfferKeptWork() {
  if (!doors.work) return;
  std::vector<Left> all = ReadLeft();
  while (!all.empty()) {
    const Answer answer = Ask(all);
    if (answer.decision == Decision::Later) return;
    const auto first = all.begin() + answer.first, last = all.begin() + answer.last + 1;
    const std::vector<Left> chosen(first, last);
    all.erase(first, last);
    if (answer.decision == Decision::TakeBack) {
      TakeBackAll(chosen);
    } else {
      for (const Left& left : chosen) doors.files->Remove(left.path);
    }
  }
}

}  // namespace tr7
