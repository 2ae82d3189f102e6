#include <QDialog>

#include "forms/frm_print_select.h"
#include "prog/prog_store.h"
#include "tests/tour/screen.h"
#include "tests/tour/scripts.h"
#include "tests/tour/steps.h"

namespace tr7::tour {
namespace {

constexpr int kShownMacros = 927, kShownParameters = 684;

/// The texts of a file can be read and searched by others.
void SeeInPdf(const QString& path, const std::string& text) {
  QProcess reader;
  reader.start("pdftotext", {"-layout", path, "-"});
  if (!reader.waitForFinished()) throw TourFailure("pdftotext does not run");
  const QString all = QString::fromUtf8(reader.readAllStandardOutput());
  if (!all.contains(QString::fromStdString(text))) {
    throw TourFailure(path.toStdString() + " lacks \"" + text + "\"");
  }
}

/// The preview stands: its picture, then its pages in a file that says `title`.
void PrintPdf(User& user, const std::string& name, const std::string& title) {
  user.See("the preview", [] {
    const auto* dialog = FrontDialog<QDialog>();
    return dialog && dialog->findChild<QWidget*>("cmdPrint");
  });
  user.Picture("print-" + name);
  const QString path = user.file.chopped(4) + "-" + QString::fromStdString(name) + ".pdf";
  user.ClickInDialog("cmdPrint");
  user.ChooseFile(path);
  user.See(
      "the printed file", [path] { return QFileInfo(path).size() > 0; }, User::kTransferMs);
  user.SeeReady();
  SeeInPdf(path, title);
}

void PrintPositions(User& user, const std::string& name) {
  user.Choose(frmMain.mnuFile, frmMain.mnuFilePrint);
  user.SeeOn(frmPrintSelect.cmdPrintSet);
  user.Picture("print-choice");
  user.Click(frmPrintSelect.cmdPrintSet);
  PrintPdf(user, name, Text(202));
}

void PrintParameters(User& user) {
  ReadParameters(user);
  user.Click(frmParameta2.cmdParaPrint);
  user.AnswerBox(Text(kShownParameters), MsgAnswer::Yes);
  PrintPdf(user, "parameters", "<< HOMING PARAMETER >>");
}

void PrintGroups(User& user) {
  user.Choose(frmMain.mnuView, frmMain.mnuViewGrp);
  user.Type(frmGrp.Rows[1].txtGrpEndNo, "15");
  user.Click(frmGrp.cmdGrpDataPrint);
  PrintPdf(user, "groups", Text(34));
}

void PrintMacros(User& user) {
  user.Choose(frmMain.mnuView, frmMain.mnuViewSM);
  user.Pick(frmSqMcr.Rows[0].comboMerei, "1. IN-ON");
  user.Type(frmSqMcr.Rows[0].txtSmData, "3");
  user.Click(frmSqMcr.cmdSMDispPrint);
  user.AnswerBox(Text(kShownMacros), MsgAnswer::Ok);
  PrintPdf(user, "macros", Text(33));
}

}  // namespace

void PrintData(User& user) {
  StartOnline(user);
  ReadAll(user);
  PrintPositions(user, "positions");
  PrintParameters(user);
  PrintGroups(user);
  PrintMacros(user);
  LeaveByMenu(user);
  for (const MsgId view : {frmGrp.Tag, frmSqMcr.Tag}) user.AnswerBox(Text(view), MsgAnswer::Ok);
}

void PrintPrograms(User& user) {
  StartOnline(user, true);
  ReadAll(user);
  PrintPositions(user, "positions-prg");
  user.Choose(frmMain.mnuFile, frmMain.mnuFileOpenProg);
  user.ChooseFile(TR7_SOURCE_DIR "/samples/pick_and_place.prg");
  user.See("the program", [] { return dynamic_cast<ProgView*>(ActiveView()) != nullptr; });
  user.Click(InTool([] { return dynamic_cast<ProgView*>(ActiveView()); })->cmdProgPrint);
  PrintPdf(user, "program", Text(7616));
  LeaveByMenu(user);
}

}  // namespace tr7::tour
