#include "forms/frm_main.h"
#include "forms/frm_wire.h"
#include "state/text.h"
#include "state/views.h"
#include "tests/tour/scripts.h"
#include "tests/tour/steps.h"

namespace tr7::tour {

void LookAtLine(User& user) {
  constexpr int kWarning = 7723, kMoves = 7724, kTimedOut = 7718, kAlarm = 7721;
  FrmWire& f = frmWire;
  PassSplash(user, true);
  SeeOnline(user, false);
  user.Choose(frmMain.mnuView, frmMain.mnuViewWire);
  user.SeeOn(f.cmdSend);
  user.Picture("console");
  user.Type(f.txtFrame, "0MP0011");
  user.Click(f.cmdSend);
  user.AnswerBox(Text(kMoves, "0MP0011"), MsgAnswer::Ok, "console-refused");
  user.Type(f.txtFrame, "0RP001");
  user.Click(f.cmdSend);
  user.AnswerBox(Text(kWarning).substr(0, 30), MsgAnswer::Yes, "console-warning");
  user.SeeText(f.lblReply, "0RP001");
  user.Picture("console-reply");
  user.TellSim("silence on");
  user.Click(f.cmdSend);
  user.See("a time-out in the record", [&f] {
    const std::string& words = f.flgdWire.Text(f.flgdWire.Rows() - 1, 5);
    return words.starts_with(Text(kTimedOut)) || f.flgdWire.IsMarked(f.flgdWire.Rows() - 1, 5);
  });
  user.TellSim("silence off");
  user.SeeReady(User::kTransferMs);
  user.TellSim("alarm 1 2");
  user.Click(f.cmdSend);
  user.AnswerBox("", MsgAnswer::Ok);
  user.SeeReady();
  user.SeeOn(f.cmdSend, false);
  user.Click(f.chkHidePolls);
  user.Type(f.txtFind, Text(kAlarm, "").substr(0, 9));
  user.Click(f.cmdFindPrevious);
  user.Picture("console-faults");
  user.Click(f.cmdSave);
  user.ChooseFile(user.file + ".txt");
  user.AnswerBox("", MsgAnswer::Ok, "console-saved");
  user.Click(f.cmdClose);
  user.SeeGone(f);
  LeaveByMenu(user);
}

}  // namespace tr7::tour
