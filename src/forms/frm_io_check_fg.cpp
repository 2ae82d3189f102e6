#include "forms/frm_io_check_fg.h"

namespace tr7 {
namespace {

constexpr WatchPaneNames kFlagPane{"PictureFlag", "flgdFlag", "cmdAddFlag", "cmdDeleteFlag",
                                   "Flag",        740,        742};
constexpr WatchPaneNames kHensuPane{
    "PictureHensu", "flgdHensu", "cmdAddHensu", "cmdDeleteHensu", "Hensu", 750, 752};
constexpr WatchPaneNames kPosHensuPane{
    "PicturePosHensu", "flgdPHensu", "cmdAddPosHensu", "cmdDeletePosHensu", "PosHensu", 760, 7328};

constexpr int kHighestNumber = 100;

std::string Named(const char* front, const char* base, const char* behind = "") {
  return std::string(front) + base + behind;
}

}  // namespace

WatchPane::WatchPane(View& owner, const WatchPaneNames& names, const char* program_field,
                     const char* number_field)
    : Pane(owner, names.pane, names.title),
      chkRead(owner, Named("chkRead", names.base), 7321),
      List(owner, names.grid, 1, 3, 1, 0),
      lblProgram(owner, Named("lbl", names.base, "Program"), 741),
      txtProgram(owner, program_field),
      updProgram(owner, Named("upd", program_field), 0, kHighestNumber),
      lblNumber(owner, Named("lbl", names.base, "Number"), names.number),
      txtNumber(owner, number_field),
      updNumber(owner, Named("upd", number_field), 1, kHighestNumber),
      cmdAdd(owner, names.add, 746),
      cmdChange(owner, Named("cmdChange", names.base), 7322),
      cmdDelete(owner, names.remove, 747),
      cmdUp(owner, Named("cmdUp", names.base), 7323),
      cmdDown(owner, Named("cmdDown", names.base), 7324) {
  for (TextBox* field : {&txtProgram, &txtNumber}) {
    field->MaxLength = 3;
    field->AllowedChars = "0123456789";
  }
  chkRead.Value = true;
}

IoPage::IoPage(View& owner)
    : controls(owner),
      framInput(owner, "framInput", 7303),
      flgdInput(owner, "flgdInput", kInputRows, kPointForced, 0, 1),
      framOutput(owner, "framOutput", 7304),
      flgdOutput(owner, "flgdOutput", kOutputRows, kPointForced + 1, 0, 1),
      framPosition(owner, "framPosition", 7305),
      lblAxis(owner, "lblAxis"),
      lblCurrentPos(owner, "lblCurrentPos"),
      cmdNamesLoad(owner, "cmdNamesLoad", 7311),
      cmdNamesSave(owner, "cmdNamesSave", 7310) {
  controls.Close();
}

WatchPage::WatchPage(View& owner)
    : controls(owner),
      chkEditItem(owner, "chkEditItem", 1040),
      optFlag(owner, "optFlag", 1, {744, 745}),
      Flags(owner, kFlagPane, "txtPrgNo", "txtFlagNo"),
      optHensu(owner, "optHensu", 2, {754, 755}),
      Variables(owner, kHensuPane, "txtHPrgNo", "txtHensuNo"),
      PosVariables(owner, kPosHensuPane, "txtPHPrgNo", "txtPHensuNo") {
  controls.Close();
}

PlotPage::PlotPage(View& owner)
    : controls(owner),
      chkPlotPause(owner, "chkPlotPause", 7340),
      cmdPlotBack(owner, "cmdPlotBack", 7343),
      cmdPlotOn(owner, "cmdPlotOn", 7344),
      cmdPlotIn(owner, "cmdPlotIn", 7341),
      cmdPlotOut(owner, "cmdPlotOut", 7342),
      cmdPlotCsv(owner, "cmdPlotCsv", 7345),
      cmdPlotPicture(owner, "cmdPlotPicture", 7346),
      flgdPlot(owner, "flgdPlot", 1, 4, 1, 0),
      plotIo(owner, "plotIo"),
      lblPlotCursor(owner, "lblPlotCursor") {
  controls.Close();
}

FrmIOCheckFG::FrmIOCheckFG() : View("frmIOCheckFG", 701) {
  HelpPage = "io";
  MdiChild = true;
  Width = 14400;
  Height = 8400;
  cmdIoWinClose.Cancel = true;
  cmdIoCopy.Key = "Ctrl+Shift+C";
}

}  // namespace tr7
