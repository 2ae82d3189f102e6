#include "tests/tour/steps.h"

#include "forms/frm_options2.h"
#include "forms/frm_select_posi_no.h"
#include "forms/frm_selection.h"
#include "forms/frm_splash.h"
#include "forms/frm_syogo_kekka.h"

namespace tr7::tour {
namespace {

constexpr int kOnlineOrOffline = 71, kOnlineText = 5116, kPositionerMode = 128, kProgramMode = 129,
              kVersionText = 416;
constexpr int kConfirmRead = 370, kConfirmWrite = 375, kConfirmSave = 405, kDropChanges = 6450;
constexpr int kInputRange = 5240, kSendingText = 383, kSentText = 376, kEqualText = 826,
              kDifferentTitle = 2301, kCheckTitle = 2302, kAllGoodText = 6358, kLineNumber = 6352;

int RowOf(const Cell& cell) { return kPosiHeaderRows + cell.number - 1; }

std::string NameOf(const QString& path) { return QFileInfo(path).completeBaseName().toStdString(); }

/// The file is named in the view's caption and stands on the disk.
void SeeSaved(User& user, const QString& path) {
  user.SeeReady();
  user.See("the file's name as the title",
           [path] { return frmPosi.Caption.find(NameOf(path)) != std::string::npos; });
  user.See("the saved file", [path] { return QFileInfo(path).size() > 0; });
}

/// The result view, of which the words stand in the line below; closes it.
void SeeResult(User& user, MsgId title, const std::initializer_list<std::string>& words,
               const char* picture) {
  user.SeeOn(frmSyogoKekka.cmdClose);
  user.SeeTitle(frmSyogoKekka, Text(title));
  for (const std::string& word : words) user.SeeText(frmSyogoKekka.lblLine, word);
  user.Picture(picture);
  user.Leave(frmSyogoKekka, frmSyogoKekka.cmdClose);
  user.SeeReady();
}

/// A box that only tells, at the end of a transfer.
void SeeTold(User& user, MsgId text, const char* picture) {
  user.AnswerBox(Text(text), MsgAnswer::Ok, picture, User::kTransferMs);
  user.SeeReady();
}

/// Accepts the range that the dialogue proposes.
void AcceptRange(User& user, SelectPosiNoView& range, const char* picture) {
  user.SeeOn(range.txtToNo);
  user.Picture(picture);
  user.Click(range.cmdOk);
}

}  // namespace

void Choose(User& user, MsgId prompt, const char* picture, bool second) {
  user.SeeText(frmSelection.lblPrompt, Text(prompt));
  user.Picture(picture);
  if (second) user.Click(frmSelection.optChoice2);
  user.Click(frmSelection.cmdOk);
}

void PassSplash(User& user, bool online) {
  user.SeeText(frmSplash.lblProduct, "QV-TR7");
  user.Picture("splash");
  // Texts are asked for when the tool knows its language.
  user.SeeOn(frmSelection.cmdOk);
  user.SeeGone(frmSplash);
  Choose(user, kOnlineOrOffline, "choice", !online);
}

void SeeOnline(User& user, bool program_mode) {
  user.SeePanel(kPanelError, Text(kVersionText));
  user.SeeText(frmMain.lblOnline, Text(kOnlineText));
  user.SeeText(frmMain.lblCtMode,
               Text(program_mode ? MsgId(kProgramMode) : MsgId(kPositionerMode)));
  user.SeeReady();
}

void StartOnline(User& user, bool program_mode) {
  PassSplash(user, true);
  SeeOnline(user, program_mode);
}

void StartReading(User& user, bool pictures) {
  user.Click(frmPosi.cmdPosiRead);
  user.SeeOn(frmSelectPosiNo2.txtFromNo);
  user.Type(frmSelectPosiNo2.txtFromNo, "1");
  user.Type(frmSelectPosiNo2.txtToNo, "40");
  user.SeeText(frmSelectPosiNo2.txtToNo, "40");
  if (pictures) user.Picture("range");
  user.Click(frmSelectPosiNo2.cmdOk);
  user.AnswerBox(Text(kConfirmRead), MsgAnswer::Ok, pictures ? "confirm-read" : nullptr);
}

void ReadAll(User& user) {
  StartReading(user);
  user.SeeOn(frmMain.cmdComCancel);
  user.SeeReady(User::kTransferMs);
  user.See("40 lines", [] { return frmPosi.flgdData.Rows() == kPosiHeaderRows + 40; });
}

void ReadParameters(User& user) {
  user.Choose(frmMain.mnuView, frmMain.mnuViewPara);
  user.Click(frmParameta2.cmdParaRead);
  user.SeeText(frmParameta2.txtHomePush[1], "50");
  user.SeeReady(User::kTransferMs);
}

void SwitchToPulses(User& user) {
  constexpr int kUnitTab = 2;
  user.Choose(frmMain.mnuSetting, frmMain.mnuSettingOptions);
  user.SeeOn(frmOptions2.txtPortNo);
  user.Picture("options-port");
  user.ClickTab(frmOptions2.tabOptions, kUnitTab);
  user.Click(frmOptions2.optUnitPulse);
  user.Picture("options-unit");
  user.Leave(frmOptions2, frmOptions2.cmdOk);
  user.SeeReady();
}

void LeaveByMenu(User& user) {
  user.SeeReady();
  user.Choose(frmMain.mnuFile, frmMain.mnuFileExit);
}

void SeeCell(User& user, const Cell& cell, const std::string& text) {
  user.SeeCell(frmPosi.flgdData, RowOf(cell), cell.col, text);
}

void EditCell(User& user, const Cell& cell, const std::string& typed) {
  user.ClickCell(frmPosi.flgdData, RowOf(cell), cell.col);
  user.Keys(typed);
  user.Key(Qt::Key_Return);
}

void BeRefused(User& user, const Cell& cell, const std::string& typed, const std::string& kept) {
  EditCell(user, cell, typed);
  user.SeePanel(kPanelError, Text(kInputRange));
  user.SeeCellEditor(frmPosi.flgdData, kept);
  user.Picture("edit-refused");
  user.Key(Qt::Key_Escape);
  SeeCell(user, cell, kept);
}

void CheckTable(User& user, const Cell& cell, const std::string& text) {
  user.ClickCell(frmPosi.flgdData, RowOf(cell), cell.col);
  user.Key(Qt::Key_Backspace);
  user.Key(Qt::Key_Return);
  SeeCell(user, cell, "");
  user.Click(frmPosi.cmdPosiCheck);
  SeeResult(user, kCheckTitle, {Text(kLineNumber, std::to_string(cell.number))}, "check-result");
  EditCell(user, cell, text);
  user.Click(frmPosi.cmdPosiCheck);
  SeeTold(user, kAllGoodText, "check-good");
}

void SaveNew(User& user, const QString& path) {
  user.Click(frmPosi.cmdPosiSave);
  user.ChooseFile(path, "save-dialogue");
  SeeSaved(user, path);
  user.Picture("saved");
}

void SaveAs(User& user, const QString& path) {
  user.Click(frmPosi.cmdPosiSaveAs);
  AcceptRange(user, frmSelectPosiNo3, "save-range");
  user.AnswerBox(Text(kConfirmSave), MsgAnswer::Ok);
  user.ChooseFile(path, "save-as-dialogue");
  SeeSaved(user, path);
}

void WriteAll(User& user) {
  user.Click(frmPosi.cmdPosiWrite);
  AcceptRange(user, frmSelectPosiNo3, "write-range");
  user.AnswerBox(Text(kConfirmWrite), MsgAnswer::Ok);
  user.SeeText(frmMain.lblStatus, Text(kSendingText));
  user.SeeOn(frmMain.cmdComCancel);
  user.See("a third of the write",
           [] { return 3 * frmMain.ProgressBar1.Value > frmMain.ProgressBar1.Max; });
  user.Picture("writing");
  SeeTold(user, kSentText, "written");
}

void VerifyEqual(User& user) {
  user.Click(frmPosi.cmdPosiCtVerify);
  AcceptRange(user, frmSelectPosiNo3, "verify-range");
  SeeTold(user, kEqualText, "verify-equal");
}

void VerifyDifferent(User& user, const std::string& own, const std::string& other) {
  user.Click(frmPosi.cmdPosiCtVerify);
  AcceptRange(user, frmSelectPosiNo3, "verify-range");
  const auto seen = [] { return frmSyogoKekka.Visible; };
  user.See("the end of the read", seen, User::kTransferMs);
  SeeResult(user, kDifferentTitle, {own, other}, "verify-different");
}

void VerifyFile(User& user, const QString& path, const std::string& own) {
  user.Click(frmPosi.cmdPosiFileVerify);
  user.ChooseFile(path, "verify-file-dialogue");
  AcceptRange(user, frmSelectPosiNo4, "verify-file-range");
  SeeResult(user, kDifferentTitle, {own, NameOf(path)}, "verify-file");
}

void CompareFile(User& user, const QString& path, const std::string& own,
                 const std::string& other) {
  constexpr int kFile = 2;
  user.Click(frmPosi.cmdPosiCompare);
  user.Pick(frmCompare.comboThere, kFile);
  user.Click(frmCompare.cmdCompare);
  user.ChooseFile(path, "compare-file-dialogue");
  user.SeeCell(frmCompare.flgdCompare, 1, 2, own);
  user.SeeCell(frmCompare.flgdCompare, 1, 3, other);
  user.Picture("compare-positions");
  user.Click(frmCompare.chkEqualToo);
  user.See("all cells", [] { return frmCompare.flgdCompare.Rows() > 1000; });
  user.Picture("compare-positions-all");
  user.Leave(frmCompare, frmCompare.cmdClose);
}

void OpenAgain(User& user, const QString& path, const Cell& cell, const std::string& saved) {
  user.Click(frmPosi.cmdPosiOpen);
  user.AnswerBox(Text(kDropChanges), MsgAnswer::No, "open-question");
  user.ChooseFile(path, "open-dialogue");
  SeeCell(user, cell, saved);
  SeeSaved(user, path);
  user.Picture("opened");
}

}  // namespace tr7::tour
