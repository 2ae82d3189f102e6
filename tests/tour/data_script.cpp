#include <QDir>
#include <fstream>

#include "forms/frm_kept_work.h"
#include "forms/frm_system_para.h"
#include "state/kept_work.h"
#include "tests/tour/scripts.h"
#include "tests/tour/steps.h"

namespace tr7::tour {
namespace {

constexpr std::size_t kFirst = 0, kSecond = 1;

/// One view of data: `bad` in its field is refused, `good` goes to the controller and into a file,
/// `other` differs from both.
struct DataView {
  std::string name;  ///< of its pictures and of its file's kind
  View& view;
  Menu& menu;
  CommandButton &read, &write, &verify, &save, &verify_file, &close;
  MsgId ask_read, refused, ask_write, equal, different;
  TextBox& field;
  const char *bad, *good, *other;
};

void Fill(User& user, TextBox& field, const std::string& text) {
  user.Type(field, text);
  if (text.empty()) user.Key(Qt::Key_Backspace);
  user.Key(Qt::Key_Tab);
}

void SeeVerified(User& user, CommandButton& verify, MsgId result, const std::string& picture,
                 const QString& file = {}) {
  user.Click(verify);
  if (!file.isEmpty()) user.ChooseFile(file);
  user.AnswerBox(Text(result), MsgAnswer::Ok, picture.c_str(), User::kTransferMs);
  user.SeeReady();
}

void Read(User& user, const DataView& data) {
  user.Click(data.read);
  user.AnswerBox(Text(data.ask_read), MsgAnswer::Ok);
  user.SeeReady(User::kTransferMs);
}

void Write(User& user, const DataView& data) {
  constexpr int kWritten = 6507;
  user.Click(data.write);
  user.AnswerBox(Text(data.ask_write), MsgAnswer::Yes);
  user.SeePanel(kPanelError, Text(kWritten));
  user.SeeReady(User::kTransferMs);
  user.Picture(data.name + "-written");
}

void WorkOn(User& user, const DataView& data) {
  user.Choose(frmMain.mnuView, data.menu);
  Read(user, data);
  if (&data.view == &frmSqMcr) user.Pick(frmSqMcr.Rows[kFirst].comboMerei, "1. IN-ON");
  Fill(user, data.field, data.bad);
  user.Click(data.write);
  user.AnswerBox(Text(data.refused), MsgAnswer::Ok, (data.name + "-refused").c_str());
  Fill(user, data.field, data.good);
  Write(user, data);
  const QString file = user.file.chopped(3) + QString::fromStdString(data.name);
  user.Click(data.save);
  user.ChooseFile(file);
  user.See("the saved file", [file] { return QFileInfo(file).size() > 0; });
  user.SeeReady();
  SeeVerified(user, data.verify, data.equal, data.name + "-equal");
  SeeVerified(user, data.verify_file, data.equal, data.name + "-file-equal", file);
  Fill(user, data.field, data.other);
  SeeVerified(user, data.verify, data.different, data.name + "-differs");
  SeeVerified(user, data.verify_file, data.different, data.name + "-file-differs", file);
  Fill(user, data.field, data.good);  // what is saved may be closed unasked
  user.Leave(data.view, data.close);
}

void WorkOnGroupsAndMacros(User& user) {
  FrmGrp& g = frmGrp;
  FrmSqMcr& s = frmSqMcr;
  const DataView views[] = {{"grp", g, frmMain.mnuViewGrp, g.cmdReadGrp, g.cmdWriteGrp,
                             g.cmdGrpCtVerify, g.cmdGrpFileSave, g.cmdGrpFileVerify, g.cmdClose,
                             835, 820, 839, 826, 823, g.Rows[kSecond].txtGrpEndNo, "0", "15", "16"},
                            {"smd", s, frmMain.mnuViewSM, s.cmdReadSMfromCt, s.cmdWriteSMtoCt,
                             s.cmdSmCTShogo, s.cmdSmFileSave, s.cmdSmFileShogo, s.cmdClose, 920,
                             921, 937, 926, 923, s.Rows[kFirst].txtSmData, "", "3", "4"}};
  for (const DataView& data : views) WorkOn(user, data);
}

/// None of the values is known before they are read.
void WorkOnTuning(User& user) {
  constexpr int kEmpty = 7, kSend = 475, kInvalid = 1524, kDrop = 6536;
  FrmSystemPara& f = frmSystemPara;
  TextBox& field = f.Fields[kFirst].txtSystemPara;
  user.Choose(frmMain.mnuView, frmMain.mnuViewSysPara);
  user.Click(f.cmdWritetoCt);
  user.AnswerBox(Text(kSend), MsgAnswer::Yes);
  user.AnswerBox(Text(kEmpty), MsgAnswer::Ok, "tuning-empty", User::kTransferMs);
  user.SeeReady();
  user.Click(f.cmdReadFromCt);
  user.SeeReady(User::kTransferMs);
  user.See("a value", [&field] { return !field.Text.empty(); });
  user.Picture("tuning-read");
  Fill(user, field, "99999");
  user.Click(f.cmdWritetoCt);
  user.AnswerBox(Text(kSend), MsgAnswer::Yes);
  user.AnswerBox(Text(kInvalid), MsgAnswer::Ok, "tuning-refused", User::kTransferMs);
  user.SeeReady();
  user.Click(f.cmdClose);
  user.AnswerBox(Text(kDrop), MsgAnswer::Ok);
  user.SeeGone(f);
}

/// Their verification names groups and rows.
void VerifyParameters(User& user) {
  constexpr int kEqual = 826, kSaveBeforeClose = 6067;
  FrmParameta2& f = frmParameta2;
  ReadParameters(user);
  SeeVerified(user, f.cmdConpareCT, kEqual, "parameters-equal");
  Fill(user, f.txtHomePush[kSecond], "77");
  user.Picture("parameter-marked");
  user.Click(f.cmdConpareCT);
  user.AnswerBox("PUSH(2)", MsgAnswer::Ok, "parameters-differ", User::kTransferMs);
  user.SeeReady();
  user.Click(f.cmdClose);
  user.AnswerBox(Text(kSaveBeforeClose), MsgAnswer::No);
  user.SeeGone(f);
}

}  // namespace

void WorkOnData(User& user) {
  StartOnline(user);
  WorkOnGroupsAndMacros(user);
  WorkOnTuning(user);
  VerifyParameters(user);
  LeaveByMenu(user);
}

void TakeBackWork(User& user) {
  constexpr int kBack = 7814, kLost = 6491;
  KeptWork work{"grp", "/jobs/feeder.grp", ForMode::Positioner, "2024-08-31 16:05:33"};
  work.file = "\"QV-R7\",\"GRP\"\r\n99,3\r\n\"1\",1,15\r\n\"2\",10,25\r\n";
  const QString folder = user.file.chopped(3) + "ini.kept";
  QDir().mkpath(folder);
  std::ofstream((folder + "/1-1.grp.kept").toStdString()) << BytesOfWork(work);
  PassSplash(user, true);
  user.SeeCell(frmKeptWork.flgdKept, 1, 3, work.when);
  user.Picture("keep-offer");
  user.Click(frmKeptWork.cmdTakeBackAll);
  user.SeePanel(kPanelError, Text(kBack));
  user.SeeText(frmGrp.Rows[1].txtGrpEndNo, "25");
  user.Picture("keep-taken-back");
  LeaveByMenu(user);
  user.AnswerBox(Text(kLost, Text(frmGrp.Tag)), MsgAnswer::Ok);
}

}  // namespace tr7::tour
