#include "prog/prog_keep.h"

#include <cstdint>
#include <string>
#include <vector>

#include "base/seq_file.h"
#include "prog/command_list.h"
#include "prog/prog_file.h"
#include "prog/prog_listing.h"
#include "prog/prog_view.h"
#include "state/kept_work.h"
#include "state/views.h"

namespace tr7 {
namespace {

constexpr int kMsgProgram = 7200;

/// The open views whose program is not saved.
std::vector<ProgView*> UnsavedViews() {
  std::vector<ProgView*> views;
  for (View* open : OpenViews()) {
    auto* view = dynamic_cast<ProgView*>(open);
    if (view && view->Store.ProgChanged) views.push_back(view);
  }
  return views;
}

std::vector<std::string> Unsaved() {
  std::vector<std::string> names;
  for (const ProgView* view : UnsavedViews()) names.push_back(view->Name);
  return names;
}

void Keep(const std::string& which, KeptWork& work) {
  work.mode = ForMode::Program;
  for (const ProgView* view : UnsavedViews()) {
    if (view->Name != which) continue;
    work.name = view->Caption;
    work.file = ProgFileText(view->flgdProg);
    SeqWriter screen;
    screen.Number(view->Store.ProgCopyNo);
    work.screen = screen.Result();
    work.path = view->Store.FilePath;
  }
}

/// Each cell as it stood, whatever the command list holds by now.
bool PutProgram(const KeptWork& work, const std::string& path, int number, ProgView& view) {
  if (ReadProgText(work.file, work.name, view.Store) != 0) return false;
  view.Store.ProgCopyNo = static_cast<std::int16_t>(number);
  view.Store.FilePath = path;
  view.Caption = work.name;
  PutListing(view.flgdProg, view.Store.ProgFileDA);
  FGProg_InitPos(view.flgdProg);
  view.Store.ProgChanged = True;
  return true;
}

/// Into the view of its file, where the start has opened that.
bool TakeBack(const KeptWork& work) {
  int number = 0;
  SeqReader screen(work.screen);
  if (!screen.ReadInteger(0, kPrograms, number) || ReadCommandLst() != 0) return false;
  std::string path = work.path;
  if (path.empty()) static_cast<void>(screen.ReadText(path));  // an earlier version's place for it
  ProgView* of_file = UnchangedViewOf(path);
  ProgView& view = of_file ? *of_file : NewProgView();
  ShowView(view);
  if (PutProgram(work, path, number, view)) return true;
  if (!of_file) UnloadView(view);
  return false;
}

}  // namespace

void InstallProgKeep() { KeepKinds().push_back({"prog", kMsgProgram, Unsaved, Keep, TakeBack}); }

}  // namespace tr7
