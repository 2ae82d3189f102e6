// The print buttons: from a click to what comes out of the printer, the refusals, a job that is
// cancelled, a printer that fails.

#include "forms/frm_print_select.h"
#include "tests/support/flow_test.h"

namespace tr7 {
namespace {

FrmPrintSelect& f = frmPrintSelect;

class PrintFlowTest : public FlowTest {
 protected:
  /// Positions 1 to 3 are shown.
  void StartWithTable() {
    StartOnline();
    ReadRange(1, 3);
    Forget();
  }
  /// Presses the button, and that of the choice behind it after this act.
  void PrintChosen(
      CommandButton& button, std::function<void()> act = [] {}) {
    forms.on_modal["frmPrintSelect"] = [act](View&) {
      act();
      f.cmdPrintSet.Press();
      f.cmdCancel.Press();
    };
    button.Press();
  }
  void PrintWith(CommandButton& button, MsgAnswer answer, const char* file = nullptr) {
    forms.answers = {answer};
    if (file) forms.file_answers = {file};
    button.Press();
  }
  /// The names of the jobs that came out since the last call.
  Texts Jobs() { return std::exchange(virt.printer.jobs, {}); }
  /// The job that came out last says so.
  bool OnPaper(const std::string& part) const {
    const auto has = [&part](const std::string& line) { return line.find(part) != line.npos; };
    return std::any_of(virt.printer.pages.begin(), virt.printer.pages.end(), [&](const auto& page) {
      return std::any_of(page.begin(), page.end(), has);
    });
  }
};

TEST_F(PrintFlowTest, TheChoiceRefusesWhatCannotBePrinted) {
  StartWithTable();
  const std::string range = "The specified range is not right. Please check again.";
  const std::string file = "Invalid file name. Confirm file name and print it again.";
  const std::pair<std::function<void()>, Texts> rows[] = {
      {[] { f.txtPrintStartPosi.Type("10"), f.txtPrintEndPosi.Type("9"); }, {range}},
      {[] { f.optPrintPosi[1].Press(); }, {file}},
      {[] { f.chkPrintPosi.Set(false); }, {}}};
  for (const auto& [act, boxes] : rows) {
    PrintChosen(frmPosi.cmdPosiPrint, act);
    EXPECT_EQ(Boxes(), boxes);
    EXPECT_EQ(Jobs(), Texts());
  }
  PrintChosen(frmPosi.cmdPosiPrint, [] {
    f.txtPrintStartPosi.Type("0");
    f.txtPrintStartPosi.LostFocus();
    EXPECT_TRUE(f.txtPrintStartPosi.Text == "1" && !f.cmdSelectPosiFile.Visible);
    f.txtPrintEndPosi.Type("2");
  });
  EXPECT_TRUE(OnPaper("  2:  ") && !OnPaper("  3:  ") && OnPaper("File Name:Inside of C/T"));
  PrintChosen(frmPosi.cmdPosiPrint, [] { f.txtPrintEndPosi.Type("5"); });
  EXPECT_TRUE(OnPaper("  5:  ") && !OnPaper("  6:  ")) << "also without data";
}

TEST_F(PrintFlowTest, PositionsPrintAsShownOrOutOfAFile) {
  constexpr int kPlace = AxisBase(0) + kPosi;
  StartWithTable();
  forms.file_answers = {"/a.qvd", "/a.qvd"};
  AnswerRange("frmSelectPosiNo3", 1, 2);
  forms.answers = {MsgAnswer::Ok};
  frmPosi.cmdPosiSaveAs.Press();
  Put(1, kPlace, "7.000");
  PrintChosen(frmPosi.cmdPosiPrint);
  EXPECT_TRUE(OnPaper("AXIS1:QV-") && OnPaper("|Posi1(mm)|") && OnPaper("|7.000|"));
  PrintChosen(frmPosi.cmdPosiPrint, [] {
    f.optPrintPosi[1].Press();
    f.cmdSelectPosiFile.Press();
  });
  EXPECT_TRUE(OnPaper("File Name:a.qvd") && OnPaper("|Posi1(mm)|") && OnPaper("  2:  "));
  EXPECT_FALSE(OnPaper("|7.000|") || OnPaper("  3:  "));
  EXPECT_EQ(Cell(1, kPlace), "7.000") << "what is shown stays";
}

TEST_F(PrintFlowTest, ParametersPrintAsShownOrOutOfAFile) {
  FrmParameta2& p = frmParameta2;
  StartWithTable();
  frmMain.mnuViewPara.Press();
  p.cmdParaRead.Press();
  PrintChosen(frmPosi.cmdPosiPrint, [] { f.chkPrintPara.Set(true); });
  EXPECT_EQ(Jobs(), (Texts{"Position Data", "QV-TR7 Parameters"}));
  EXPECT_TRUE(OnPaper(" 1. POS/PRG:|POS") && OnPaper("File Name:INDICATED DATA"));
  forms.file_answers = {"/a.pmt"};
  p.cmdSaveParaFile.Press();
  PrintWith(p.cmdParaFilePrint, MsgAnswer::Yes, "/a.pmt");
  EXPECT_EQ(Jobs(), Texts{"QV-TR7 Parameters"});
  EXPECT_TRUE(OnPaper("File Name:a.pmt") && OnPaper(p.txtAxisMmStroke[0].Text));
  p.txtHomePush[0].Text = "9999";
  PrintWith(p.cmdParaPrint, MsgAnswer::Yes);
  EXPECT_TRUE(BoxShown("Invalid value in some parameters."));
  EXPECT_EQ(Jobs(), Texts());
}

TEST_F(PrintFlowTest, AJobThatDoesNotComeOutSaysWhy) {
  StartOnline();
  ReadRange(1, 999);
  Forget();
  virt.printer.pages_of_paper = 2;
  PrintChosen(frmPosi.cmdPosiPrint);
  EXPECT_EQ(Boxes(), Texts{"Printing failed.\n\nout of paper"});
  virt.printer.pages_of_paper = 1000;
  pump.After(4'000, [] {
    EXPECT_TRUE(frmMain.ProgressBar1.Visible && frmMain.ProgressBar1.Value > 0);
    frmMain.cmdComCancel.Press();
  });
  PrintChosen(frmPosi.cmdPosiPrint);
  EXPECT_EQ(Boxes(), Texts{"Printing was stopped."});
  EXPECT_EQ(Jobs(), Texts());
  EXPECT_FALSE(frmMain.ProgressBar1.Visible);
}

}  // namespace
}  // namespace tr7
