#include "posi/posi_edits.h"

#include <algorithm>
#include <utility>

#include "forms/frm_posi.h"
#include "posi/posi_grid_layout.h"
#include "state/app_state.h"
#include "state/frame_menus.h"

namespace tr7 {

PosiUndoRecord PosiUndo;

namespace {

int Lines() { return std::max(frmPosi.flgdData.Rows() - kPosiHeaderRows, 0); }

std::int16_t& SourceOf(int line) { return frmPosi.SourceNo.at(static_cast<std::size_t>(line)); }

std::shared_ptr<const PosiLine> LineOf(int line) {
  auto copy = std::make_shared<PosiLine>();
  for (int col = 1; col < kPosiColumns; ++col) {
    copy->cells[static_cast<std::size_t>(col)] = frmPosi.flgdData.Text(kPosiHeaderRows + line, col);
  }
  copy->source = SourceOf(line);
  return copy;
}

const PosiShot& LastShot() {
  static const PosiShot kNone;
  return PosiUndo.done.empty() ? kNone : PosiUndo.done.back();
}

/// The grid shows what the shot does.
bool ShowsShot(const PosiShot& shot) {
  if (static_cast<int>(shot.lines.size()) != Lines()) return false;
  for (int line = 0; line < Lines(); ++line) {
    if (!ShowsPosiLine(line, *shot.lines[static_cast<std::size_t>(line)])) return false;
  }
  return true;
}

bool EndsWithUnit(const std::vector<PosiShot>& shots) {
  return !shots.empty() && shots.back().unit_step;
}

void ShowInMenu() {
  if (AppState.CommandsOffDepth > 0) return;  // they come on by what is kept then
  frmPosi.Edit.Undo = !PosiUndo.done.empty();
  frmPosi.Edit.Redo = !PosiUndo.undone.empty();
  if (&FrontView() == &frmPosi) SwitchEditCommands();
}

}  // namespace

bool ShowsPosiLine(int line, const PosiLine& of) {
  for (int col = 1; col < kPosiColumns; ++col) {
    if (frmPosi.flgdData.Text(kPosiHeaderRows + line, col) !=
        of.cells[static_cast<std::size_t>(col)])
      return false;
  }
  return true;
}

PosiShot PosiShotOf(const PosiShot& like) {
  PosiShot shot{{},
                AppState.PosiFirstNo,
                frmPosi.flgdData.Row,
                frmPosi.flgdData.Col,
                PosiUndo.commits,
                static_cast<bool>(frmPosi.PosiChanged),
                static_cast<bool>(AppState.DispMmUnit)};
  const int lines = Lines(), before = static_cast<int>(like.lines.size());
  const auto same = [&](int line, int old) {
    const PosiLine& of = *like.lines[static_cast<std::size_t>(old)];
    return of.source == SourceOf(line) && ShowsPosiLine(line, of);
  };
  int head = 0, tail = 0;
  const int most = std::min(lines, before);
  while (head < most && same(head, head)) ++head;
  while (tail < most - head && same(lines - 1 - tail, before - 1 - tail)) ++tail;
  shot.lines.reserve(static_cast<std::size_t>(lines));
  for (int line = 0; line < lines; ++line) {
    const int old = line < head ? line : line >= lines - tail ? line - lines + before : -1;
    shot.lines.push_back(old < 0 ? LineOf(line) : like.lines[static_cast<std::size_t>(old)]);
  }
  return shot;
}

void KeepPosiShot(std::vector<PosiShot>& shots, PosiShot shot) {
  shots.push_back(std::move(shot));
  if (shots.size() > kMostPosiEdits) shots.erase(shots.begin());
}

void RememberPosiEdit() {
  if (PosiUndo.steps_open > 0) return;
  KeepPosiShot(PosiUndo.done, PosiShotOf(LastShot()));
  PosiUndo.undone.clear();
  ShowInMenu();
}

PosiEditStep::PosiEditStep() {
  RememberPosiEdit();
  ++PosiUndo.steps_open;
}

PosiEditStep::~PosiEditStep() {
  if (--PosiUndo.steps_open > 0 || PosiUndo.done.empty()) return;
  if (ShowsShot(PosiUndo.done.back())) PosiUndo.done.pop_back();
  ShowInMenu();
}

void RememberPosiUnit() {
  auto& done = PosiUndo.done;
  auto& undone = PosiUndo.undone;
  const bool nothing = Lines() == 0 && done.empty() && undone.empty();
  if (nothing) return;
  if (EndsWithUnit(undone)) undone.pop_back();  // it is gone forward to
  if (EndsWithUnit(done)) {
    done.pop_back();
  } else {
    KeepPosiShot(done, PosiShotOf(LastShot()));
    done.back().unit_step = true;
  }
  ShowInMenu();
}

void PosiEditsAreSaved() {
  for (auto* shots : {&PosiUndo.done, &PosiUndo.undone}) {
    for (PosiShot& shot : *shots) shot.changed = true;
    if (EndsWithUnit(*shots)) shots->back().changed = frmPosi.PosiChanged;
  }
}

void ForgetPosiEdits() {
  PosiUndo.done.clear();
  PosiUndo.undone.clear();
  ShowInMenu();
}

}  // namespace tr7
