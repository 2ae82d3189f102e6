#include "core/about_view.h"

#include <string>
#include <string_view>
#include <vector>

#include "core/build_facts.h"
#include "forms/frm_about.h"
#include "forms/frm_main.h"
#include "platform/doors.h"
#include "state/text.h"
#include "state/views.h"

// The file LICENSE, built in.
extern const char tr7_res_LICENSE[];
extern const unsigned tr7_res_LICENSE_size;

namespace tr7 {
namespace {

constexpr int kBuild = 7901, kToolkit = 7902, kSystem = 7903, kLibraries = 7904;
constexpr int kQtLicence = 7905, kCppLicence = 7906, kLicence = 7907, kUnknown = 7908;

std::string OrUnknown(const std::string& fact) { return fact.empty() ? Text(kUnknown) : fact; }

void AddLicence(std::vector<std::string>& lines) {
  std::string_view rest(tr7_res_LICENSE, tr7_res_LICENSE_size);
  while (!rest.empty()) {
    const std::size_t end = rest.find('\n');
    lines.emplace_back(rest.substr(0, end));
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  }
}

std::vector<std::string> AboutLines() {
  std::vector<std::string> lines{Text(kBuild, OrUnknown(BuildRevision()), OrUnknown(BuildDate()))};
  if (doors.system) {
    lines.push_back(Text(kToolkit, doors.system->Toolkit()));
    lines.push_back(Text(kSystem, doors.system->System()));
  }
  lines.insert(lines.end(), {"", Text(kLibraries), Text(kQtLicence), Text(kCppLicence)});
  lines.insert(lines.end(), {"", Text(kLicence), ""});
  AddLicence(lines);
  return lines;
}

void CopyAbout() {
  const FrmAbout& f = frmAbout;
  std::string text = f.lblProduct.Caption + "\r" + f.lblSubtitle.Caption + "\r";
  for (const std::string& line : f.lstAbout.List) text += line + "\r";
  doors.clipboard->SetText(text);
}

}  // namespace

void InstallAboutView() {
  FrmAbout& f = frmAbout;
  f.Load = [] {
    frmAbout.lblProduct.Caption = frmMain.Caption;
    frmAbout.lstAbout.List = AboutLines();
  };
  f.cmdCopy.Click = CopyAbout;
  f.cmdClose.Click = [] { CloseView(frmAbout, CloseReason::Code); };
  frmMain.mnuHelpAbout.Click = [] { ShowViewModal(frmAbout); };
}

}  // namespace tr7
