#include "core/keep_work.h"

#include <algorithm>
#include <vector>

#include "forms/frm_main.h"
#include "forms/grid.h"
#include "forms/hold_button.h"
#include "link/request_queue.h"
#include "motion/motion_now.h"
#include "platform/atomic_save.h"
#include "platform/doors.h"
#include "state/app_state.h"
#include "state/files_here.h"
#include "state/kept_work.h"
#include "state/status_panel.h"
#include "state/text.h"
#include "state/text_file.h"

namespace tr7 {

KeepRecord KeepState;

namespace {

constexpr int kMsgNotKept = 7813;
/// What is unsaved is found by a look at every field, and nobody types faster than this.
constexpr int kAskEveryMs = 250;

/// Something that is unsaved, and the name of its file.
struct Unsaved {
  const KeepKind* kind;
  std::string which;
  std::string name;
};

std::vector<Unsaved> AllUnsaved() {
  std::vector<Unsaved> all;
  for (const KeepKind& kind : KeepKinds()) {
    for (std::string& which : kind.Unsaved()) {
      const std::string name = kind.Word + which;
      all.push_back({&kind, std::move(which), name});
    }
  }
  return all;
}

bool Holds(const std::vector<Unsaved>& all, const std::string& name) {
  return std::any_of(all.begin(), all.end(), [&](const Unsaved& one) { return one.name == name; });
}

/// A disk may take its time: nothing waits for it while an axis moves, and no edit is kept by half.
bool MayKeep() {
  return doors.work && !AppState.Closing && !Grid::AnEditEnds() && !HoldButton::Held() &&
         MotionNow.Kind == Motion::None && !MotionNow.Stopping;
}

void Forget(const std::string& name) {
  const std::string path = doors.work->Own(name);
  if (!path.empty() && doors.files->Exists(path)) doors.files->Remove(path);
}

void ForgetSaved(const std::vector<Unsaved>& unsaved) {
  std::erase_if(KeepState.kept, [&](const auto& kept) {
    const bool saved = !Holds(unsaved, kept.first);
    if (saved) Forget(kept.first);
    return saved;
  });
}

FileFault Keep(const Unsaved& one) {
  KeptWork work;
  work.kind = one.kind->Word;
  work.when = doors.pump->Date() + " " + doors.pump->TimeOfDay();
  one.kind->Keep(one.which, work);
  work.mark = ShownMark(work.path);
  // A table that was emptied is nothing to bring back; what it held before still is.
  if (work.file.empty() && work.screen.empty()) return FileFault::None;
  const std::string bytes = BytesOfWork(work), hash = bytes.substr(0, kWorkHashChars);
  const auto kept = KeepState.kept.find(one.name);
  if (kept != KeepState.kept.end() && kept->second == hash) return FileFault::None;
  const std::string path = doors.work->Own(one.name);
  if (path.empty()) return FileFault::NotPermitted;
  const FileFault fault = SaveAtomically(*doors.files, path, bytes);
  if (fault == FileFault::None) KeepState.kept[one.name] = hash;
  return fault;
}

/// Once, in words that stop nothing; it is tried on.
void TellNotKept(const Unsaved& one, FileFault fault) {
  if (KeepState.told) return;
  KeepState.told = true;
  TellInStatusPanel(Text(kMsgNotKept, FileFaultWords(fault, Text(one.kind->NameId))));
}

bool KeepAll(const std::vector<Unsaved>& unsaved) {
  bool all = true;
  for (const Unsaved& one : unsaved) {
    const FileFault fault = Keep(one);
    if (fault == FileFault::None) continue;
    TellNotKept(one, fault);
    all = false;
  }
  if (all) KeepState.told = false;
  return all;
}

/// What is due is kept in the first moment that allows it, also between two requests.
void SetDue(bool due) {
  KeepState.due = due;
  frmMain.TimerKeepNow.AskEveryMs = due ? 0 : kAskEveryMs;
}

/// The timer follows what is unsaved, and so do the files, at once.
bool HasWork() {
  if (!MayKeep() || MotionIsComing() || !TusinQueue.IsEmpty()) return false;
  if (KeepState.due) return true;
  const std::vector<Unsaved> unsaved = AllUnsaved();
  if (unsaved.empty() == frmMain.TimerKeep.Enabled) return true;
  return std::any_of(KeepState.kept.begin(), KeepState.kept.end(),
                     [&](const auto& kept) { return !Holds(unsaved, kept.first); });
}

void Tick() {
  const std::vector<Unsaved> unsaved = AllUnsaved();
  ForgetSaved(unsaved);
  if (KeepState.due) KeepAll(unsaved);
  SetDue(false);
  if (unsaved.empty()) frmMain.TimerKeep.Stop();
  if (!unsaved.empty() && !frmMain.TimerKeep.Enabled) frmMain.TimerKeep.Start();
}

}  // namespace

bool KeepNow() { return MayKeep() && KeepAll(AllUnsaved()); }

void StopKeeping() {
  frmMain.TimerKeep.Stop();
  if (!doors.work) return;
  for (const auto& [name, content] : KeepState.kept) Forget(name);
  KeepState.kept.clear();
  doors.work->Leave();
}

void InstallKeepWork() {
  KeepKinds().clear();
  SetDue(false);
  frmMain.TimerKeep.Tick = [] { SetDue(true); };
  frmMain.TimerKeepNow.HasWork = HasWork;
  frmMain.TimerKeepNow.Tick = Tick;
  KeepUnsavedWork = [] { static_cast<void>(KeepNow()); };
}

}  // namespace tr7
