#include "core/open_file.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "forms/frm_grp.h"
#include "forms/frm_main.h"
#include "forms/frm_parameta2.h"
#include "forms/frm_posi.h"
#include "forms/frm_sq_mcr.h"
#include "motion/motion_now.h"
#include "platform/doors.h"
#include "prog/prog_view.h"
#include "state/app_state.h"
#include "state/busy_scope.h"
#include "state/file_kind.h"
#include "state/for_mode.h"
#include "state/message_box.h"
#include "state/recent_files.h"
#include "state/text.h"
#include "state/text_file.h"
#include "state/views.h"
#include "steps/file_steps.h"

namespace tr7 {
namespace {

constexpr int kMsgNone = 5606;
constexpr int kMsgOfNoKind = 5607, kMsgOtherMode = 5608, kMsgGone = 5609;

/// How the files of a kind are opened: the view's menu command brings it, its own command asks.
struct Road {
  FileKind kind;
  MenuList& recent;
  Menu& shows;
  View* view;  ///< null: the menu's command opens by itself
  ForMode mode;
};

const Road* RoadOf(FileKind kind) {
  static const Road kRoads[] = {
      {FileKind::Position, frmMain.mnuRecentPosi, frmMain.mnuViewPosi, &frmPosi, ForMode::Any},
      {FileKind::Program, frmMain.mnuRecentProg, frmMain.mnuFileOpenProg, nullptr,
       ForMode::Program},
      {FileKind::Parameter, frmMain.mnuRecentPara, frmMain.mnuViewPara, &frmParameta2,
       ForMode::Any},
      {FileKind::Group, frmMain.mnuRecentGrp, frmMain.mnuViewGrp, &frmGrp, ForMode::Positioner},
      {FileKind::Macro, frmMain.mnuRecentSM, frmMain.mnuViewSM, &frmSqMcr, ForMode::Positioner},
  };
  const auto found = std::find_if(std::begin(kRoads), std::end(kRoads),
                                  [kind](const Road& road) { return road.kind == kind; });
  return found == std::end(kRoads) ? nullptr : found;
}

/// A program that is open from this file, with nothing unsaved, is not there twice: what the disk
/// holds takes its place.
void OpenProgramAnew(Menu& opens, const std::string& path) {
  ProgView* before = UnchangedViewOf(path);
  const View* front = ActiveView();
  opens.Press();
  const auto* now = dynamic_cast<const ProgView*>(ActiveView());
  const bool opened = now && now != front && now->Store.FilePath == path;
  if (before && opened && now != before) UnloadView(*before);
}

void TakeRoad(const Road& road, const std::string& path) {
  if (!FitsMode(road.mode)) {
    MsgBox(Text(kMsgOtherMode, FileTitle(path), Text(ModeNameId(road.mode))));
    return;
  }
  const GivenPath given(path);
  if (!road.view) return OpenProgramAnew(road.shows, path);
  road.shows.Press();
  if (road.view->Visible && road.view->Commands.Open) road.view->Commands.Open();
}

/// A file that is not there any more leaves its list.
void OpenRecent(FileKind kind, int index) {
  const std::vector<std::string> paths = RecentFiles(kind);
  if (index < 0 || index >= static_cast<int>(paths.size())) return;
  const std::string& path = paths[static_cast<std::size_t>(index)];
  if (doors.files->Exists(path)) return OpenFileByPath(path);
  ForgetFile(kind, path);
  MsgBox(Text(kMsgGone, path));
}

}  // namespace

bool MayOpenFile() {
  const bool moves = SomethingMoves() || MotionNow.Stopping || MotionIsComing();
  return frmMain.Visible && frmMain.mnuFile.Enabled && !HandlerRuns::Any() && !FlowRuns() &&
         !AppState.TeachingNow && !AppState.Closing && !moves;
}

void OpenFileByPath(const std::string& path) {
  if (!frmMain.mnuFile.Enabled) return TellFlowRuns();
  std::string utf8;
  const TextFileResult read = ReadDataFile(path, utf8);
  if (!read.ok) {
    MsgBox(read.words);
    return;
  }
  if (const Road* road = RoadOf(KindOfFile(utf8))) {
    TakeRoad(*road, path);
  } else {
    MsgBox(Text(kMsgOfNoKind, FileTitle(path)));
  }
}

void InstallRecentFiles() {
  for (const FileKind kind : {FileKind::Position, FileKind::Program, FileKind::Parameter,
                              FileKind::Group, FileKind::Macro}) {
    MenuList& list = RoadOf(kind)->recent;
    list.Entries = [kind] { return RecentFiles(kind); };
    list.EmptyId = kMsgNone;
    list.Pick = [kind](int index) { OpenRecent(kind, index); };
  }
}

}  // namespace tr7
