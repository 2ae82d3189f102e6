#include "core/help.h"

#include <string>

#include "forms/frm_main.h"
#include "platform/doors.h"
#include "state/app_state.h"
#include "state/frame_menus.h"
#include "state/message_box.h"
#include "state/text.h"
#include "state/text_file.h"
#include "state/views.h"

namespace tr7 {
namespace {

constexpr const char* kHelpFile = "help/index.html";
constexpr const char* kHelpFileOfTree = "../help/index.html";
constexpr int kNoHelpFile = 5157;

/// A page in the user's language; the pages stand in folders beside the help file.
std::string PagePath(const std::string& page) {
  const std::string& file = AppState.HelpFilePath;
  if (file.empty()) return {};
  const std::string folder = file.substr(0, file.find_last_of("/\\") + 1);
  return folder + (AppState.LangOffset == 0 ? "ja/" : "en/") + page + ".html";
}

void OpenPage(const std::string& page) {
  const std::string path = PagePath(page);
  if (path.empty() || !doors.files->Exists(path) || !doors.help->Open(path)) {
    MsgBox(Text(kNoHelpFile, path));
  }
}

void OpenPageOfFront() {
  const View* modal = ModalView();
  OpenPage(modal ? modal->HelpPage : FrontView().HelpPage);
}

}  // namespace

void FindHelpFile() {
  AppState.HelpFilePath = ProgramFile(kHelpFile);
  const std::string of_tree = ProgramFile(kHelpFileOfTree);
  if (!doors.files->Exists(AppState.HelpFilePath) && doors.files->Exists(of_tree)) {
    AppState.HelpFilePath = of_tree;
  }
}

void InstallHelp() {
  FrmMain& f = frmMain;
  f.mnuHelpContents.Click = OpenPageOfFront;
  f.mnuHelpKeys.Click = [] { OpenPage("keys"); };
  f.mnuHelpTrouble.Click = [] { OpenPage("trouble"); };
  f.Help = [](const std::string& page) { page.empty() ? OpenPageOfFront() : OpenPage(page); };
}

}  // namespace tr7
