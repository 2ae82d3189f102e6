#include "tests/tour/job_steps.h"

#include <QFileInfo>

#include "forms/frm_main.h"
#include "forms/frm_options2.h"
#include "forms/frm_posi.h"
#include "forms/frm_select_posi_no.h"
#include "forms/frm_syogo_kekka.h"
#include "posi/posi_grid_layout.h"
#include "posi/posi_table.h"
#include "state/text.h"

namespace tr7::tour {
namespace {

constexpr int kUnitTab = 2;
constexpr int kInputRange = 5240, kSendingText = 383, kSentText = 376, kGoodText = 826,
              kDifferentTitle = 2301, kFileQuestion = 6450;
/// A whole table of 40 lines both ways, on a slow machine.
constexpr int kTransferMs = 60'000;

Grid& Table() { return frmPosi.flgdData; }

void SeeEdited(Tour& tour, const Cell& cell, const std::string& text) {
  tour.user.SeeCell(Table(), RowOf(cell), cell.col, text);
}

void SeeFileName(Tour& tour, const QString& path) {
  const QString name = QFileInfo(path).completeBaseName();
  tour.user.See("the file's name as the title",
                [name] { return QString::fromStdString(frmPosi.Caption).contains(name); });
}

/// The result view on one changed cell; both sides stand in the line below.
void SeeDifference(Tour& tour, const std::string& own, const std::string& other) {
  User& user = tour.user;
  user.SeeOn(frmSyogoKekka.cmdClose);
  user.SeeTitle(frmSyogoKekka, Text(kDifferentTitle));
  user.SeeText(frmSyogoKekka.lblLine, own);
  user.SeeText(frmSyogoKekka.lblLine, other);
}

void CloseResult(Tour& tour) {
  tour.user.Click(frmSyogoKekka.cmdClose);
  tour.user.SeeGone(frmSyogoKekka);
  tour.user.SeeReady();
}

}  // namespace

int RowOf(const Cell& cell) { return kPosiHeaderRows + cell.number - 1; }

void EditCell(Tour& tour, const Cell& cell, const std::string& typed) {
  tour.user.ClickCell(Table(), RowOf(cell), cell.col);
  tour.user.Keys(typed);
  tour.user.Key(Qt::Key_Return);
}

void BeRefused(Tour& tour, const Cell& cell, const std::string& typed, const std::string& kept) {
  User& user = tour.user;
  EditCell(tour, cell, typed);
  user.SeePanel(kPanelError, Text(kInputRange));
  user.SeeCellEditor(Table(), kept);
  user.Picture("edit-refused");
  user.Key(Qt::Key_Escape);
  SeeEdited(tour, cell, kept);
}

void SaveNew(Tour& tour, const QString& path, bool picture) {
  User& user = tour.user;
  user.Click(frmPosi.cmdPosiSave);
  user.SeeFileDialog();
  if (picture) user.Picture("save-dialogue");
  user.ChooseFile(path);
  user.SeeReady();
  SeeFileName(tour, path);
  user.See("the saved file", [path] { return QFileInfo(path).size() > 0; });
}

void SwitchToPulses(Tour& tour) {
  User& user = tour.user;
  user.Choose(frmMain.mnuSetting, frmMain.mnuSettingOptions);
  user.SeeOn(frmOptions2.txtPortNo);
  user.ClickTab(frmOptions2.tabOptions, kUnitTab);
  user.Click(frmOptions2.optUnitPulse);
  user.Click(frmOptions2.cmdOk);
  user.SeeGone(frmOptions2);
  user.SeeReady();
}

void WriteAll(Tour& tour) {
  User& user = tour.user;
  user.Click(frmPosi.cmdPosiWrite);
  user.SeeOn(frmSelectPosiNo3.txtToNo);
  user.Picture("write-range");
  user.Click(frmSelectPosiNo3.cmdOk);
  user.SeeBox(Text(375));
  user.Answer(MsgAnswer::Ok);
  user.SeeText(frmMain.lblStatus, Text(kSendingText));
  user.SeeOn(frmMain.cmdComCancel);
  user.See("a third of the write",
           [] { return 3 * frmMain.ProgressBar1.Value > frmMain.ProgressBar1.Max; });
  user.Picture("writing");
  user.SeeBox(Text(kSentText), kTransferMs);
  user.Picture("written");
  user.Answer(MsgAnswer::Ok);
  user.SeeReady();
}

void VerifyEqual(Tour& tour) {
  User& user = tour.user;
  user.Click(frmPosi.cmdPosiCtVerify);
  user.SeeOn(frmSelectPosiNo3.txtToNo);
  user.Click(frmSelectPosiNo3.cmdOk);
  user.SeeBox(Text(kGoodText), kTransferMs);
  user.Picture("verify-equal");
  user.Answer(MsgAnswer::Ok);
  user.SeeReady();
}

void VerifyDifferent(Tour& tour, const std::string& own, const std::string& other) {
  User& user = tour.user;
  user.Click(frmPosi.cmdPosiCtVerify);
  user.SeeOn(frmSelectPosiNo3.txtToNo);
  user.Click(frmSelectPosiNo3.cmdOk);
  user.SeeGone(frmSelectPosiNo3);
  user.SeeOn(frmMain.cmdComCancel);
  user.See(
      "the end of the read", [] { return frmSyogoKekka.Visible; }, kTransferMs);
  SeeDifference(tour, own, other);
  user.Picture("verify-different");
  CloseResult(tour);
}

void VerifyFile(Tour& tour, const QString& path, const std::string& own) {
  User& user = tour.user;
  user.Click(frmPosi.cmdPosiFileVerify);
  user.ChooseFile(path);
  user.SeeOn(frmSelectPosiNo4.txtToNo);
  user.Picture("verify-file-range");
  user.Click(frmSelectPosiNo4.cmdOk);
  SeeDifference(tour, own, QFileInfo(path).completeBaseName().toStdString());
  user.Picture("verify-file");
  CloseResult(tour);
}

void OpenAgain(Tour& tour, const QString& path, const Cell& cell, const std::string& saved) {
  User& user = tour.user;
  user.Click(frmPosi.cmdPosiOpen);
  user.SeeBox(Text(kFileQuestion));
  user.Picture("open-question");
  user.Answer(MsgAnswer::No);
  user.SeeFileDialog();
  user.Picture("open-dialogue");
  user.ChooseFile(path);
  SeeEdited(tour, cell, saved);
  SeeFileName(tour, path);
  user.SeeReady();
  user.Picture("opened");
}

}  // namespace tr7::tour
