#include "tests/tour/data_script.h"

#include <QDir>
#include <QFileInfo>
#include <fstream>

#include "forms/frm_grp.h"
#include "forms/frm_kept_work.h"
#include "forms/frm_main.h"
#include "forms/frm_parameta2.h"
#include "forms/frm_sq_mcr.h"
#include "forms/frm_system_para.h"
#include "state/kept_work.h"
#include "state/text.h"
#include "tests/tour/steps.h"

namespace tr7::tour {
namespace {

constexpr std::size_t kFirst = 0, kSecond = 1;

/// One view of data, with a field to change.
struct DataView {
  std::string name;  ///< of its pictures and of its file's kind
  CommandButton &read, &write, &verify, &save, &verify_file;
  MsgId ask_read, refused, ask_write, equal, different;
  TextBox& field;
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

/// `bad` is refused, `good` goes to the controller and into a file, `other` differs from both.
void WorkOn(User& user, const DataView& data, const std::string& bad, const std::string& good,
            const std::string& other) {
  Fill(user, data.field, bad);
  user.Click(data.write);
  user.AnswerBox(Text(data.refused), MsgAnswer::Ok, (data.name + "-refused").c_str());
  Fill(user, data.field, good);
  Write(user, data);
  const QString file = user.file.chopped(3) + QString::fromStdString(data.name);
  user.Click(data.save);
  user.ChooseFile(file);
  user.See("the saved file", [file] { return QFileInfo(file).size() > 0; });
  user.SeeReady();
  SeeVerified(user, data.verify, data.equal, data.name + "-equal");
  SeeVerified(user, data.verify_file, data.equal, data.name + "-file-equal", file);
  Fill(user, data.field, other);
  SeeVerified(user, data.verify, data.different, data.name + "-differs");
  SeeVerified(user, data.verify_file, data.different, data.name + "-file-differs", file);
  Fill(user, data.field, good);  // what is saved may be closed unasked
}

void WorkOnGroups(User& user) {
  FrmGrp& f = frmGrp;
  const DataView data{"grp",
                      f.cmdReadGrp,
                      f.cmdWriteGrp,
                      f.cmdGrpCtVerify,
                      f.cmdGrpFileSave,
                      f.cmdGrpFileVerify,
                      835,
                      820,
                      839,
                      826,
                      823,
                      f.Rows[kSecond].txtGrpEndNo};
  user.Choose(frmMain.mnuView, frmMain.mnuViewGrp);
  Read(user, data);
  WorkOn(user, data, "0", "15", "16");
  user.Click(f.cmdClose);
  user.SeeGone(f);
}

void WorkOnMacros(User& user) {
  FrmSqMcr& f = frmSqMcr;
  const DataView data{"smd",
                      f.cmdReadSMfromCt,
                      f.cmdWriteSMtoCt,
                      f.cmdSmCTShogo,
                      f.cmdSmFileSave,
                      f.cmdSmFileShogo,
                      920,
                      921,
                      937,
                      926,
                      923,
                      f.Rows[kFirst].txtSmData};
  user.Choose(frmMain.mnuView, frmMain.mnuViewSM);
  Read(user, data);
  user.Pick(f.Rows[kFirst].comboMerei, "1. IN-ON");
  WorkOn(user, data, "", "3", "4");
  user.Click(f.cmdClose);
  user.SeeGone(f);
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
  user.Choose(frmMain.mnuView, frmMain.mnuViewPara);
  user.Click(f.cmdParaRead);
  user.SeeText(f.txtHomePush[kSecond], "50");
  user.SeeReady(User::kTransferMs);
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
  PassSplash(user, true);
  SeeOnline(user, false);
  WorkOnGroups(user);
  WorkOnMacros(user);
  WorkOnTuning(user);
  VerifyParameters(user);
  LeaveByMenu(user);
}

void TakeBackWork(User& user) {
  constexpr int kBack = 7814, kLost = 6491;
  const KeptWork work{"grp",
                      "/jobs/feeder.grp",
                      ForMode::Positioner,
                      "2024-08-31 16:05:33",
                      "\"QV-R7\",\"GRP\"\r\n99,3\r\n\"1\",1,15\r\n\"2\",10,25\r\n",
                      ""};
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
