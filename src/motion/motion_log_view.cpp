#include "motion/motion_log_view.h"

#include <array>
#include <string>

#include "forms/frm_main.h"
#include "forms/frm_motion_log.h"
#include "motion/motion_log.h"
#include "platform/doors.h"
#include "state/text.h"
#include "state/views.h"

namespace tr7 {
namespace {

constexpr int kFirstTitle = 5400;
constexpr int kColumns = 4;
constexpr std::array kWidths{1300, 2400, 2600, -1};  // twips

std::array<std::string, kColumns> Cells(const MotionEntry& entry) {
  return {entry.time, entry.action, entry.sent, entry.outcome};
}

void ShowLog() {
  Grid& grid = frmMotionLog.flgdLog;
  grid.SetRows(1 + static_cast<int>(MotionLog.size()));
  for (int col = 0; col < kColumns; ++col) {
    grid.SetText(0, col, Text(MsgId::At(kFirstTitle, col)));
    grid.SetColWidth(col, kWidths[col]);
  }
  int row = 0;
  for (auto entry = MotionLog.rbegin(); entry != MotionLog.rend(); ++entry) {
    ++row;
    const auto cells = Cells(*entry);
    for (int col = 0; col < kColumns; ++col) grid.SetText(row, col, cells[col]);
  }
}

void CopyLog() {
  std::string text;
  for (const MotionEntry& entry : MotionLog) {
    for (const std::string& cell : Cells(entry)) text += cell + "\t";
    text.back() = '\n';
  }
  if (doors.clipboard) doors.clipboard->SetText(text);
}

}  // namespace

void InstallMotionLogView() {
  FrmMotionLog& f = frmMotionLog;
  f.Load = f.Activate = ShowLog;
  f.flgdLog.WhenEmpty = 7175;
  f.cmdCopy.Click = CopyLog;
  f.cmdClose.Click = [] { CloseView(frmMotionLog, CloseReason::Code); };
  f.OpenedBy = &frmMain.mnuHelpMotionLog;
  frmMain.mnuHelpMotionLog.Click = [] {
    ShowOrBringToFront(frmMotionLog);
    ShowLog();
  };
}

}  // namespace tr7
