#include "report/posi_print.h"

#include <string>

#include "device/dev_setting.h"
#include "forms/frm_posi.h"
#include "posi/file_devices.h"
#include "posi/posi_caption.h"
#include "posi/posi_check.h"
#include "posi/posi_commands.h"
#include "posi/posi_file.h"
#include "posi/posi_file_flows.h"
#include "posi/posi_format.h"
#include "posi/posi_grid_fill.h"
#include "posi/posi_range.h"
#include "posi/posi_table.h"
#include "report/para_print.h"
#include "report/posi_report.h"
#include "report/print_flow.h"
#include "report/print_select.h"
#include "state/app_state.h"
#include "state/axes_in_use.h"
#include "state/busy_scope.h"
#include "state/text_file.h"

namespace tr7 {
namespace {

Outcome Print(const PosiRows& rows, const SheetHead& head) {
  return PrintReport(AppState.CtMode ? PrintPosiTablePrg(rows, head) : PrintPosiTable(rows, head));
}

/// "Inside of C/T" and "New Data" are no paths.
std::string NameOfTable() {
  return PosiTableHasFile() ? FileTitle(PosiTablePath()) : PosiTable.Name;
}

/// A number that is not loaded stands on paper as one without data.
Outcome PrintShown(const PosiRange& range) {
  const KeepPlace place;  // from which the check goes away
  if (Check_flgdLineNo() != 0 || !PosiDataCheckAll()) return Outcome::Failed;
  PosiRows rows;
  for (int n = range.first; n <= range.last; ++n) rows.Numbers.push_back(n);
  rows.AxisMask = AxesInUseMask();
  rows.Mm = AppState.DispMmUnit;
  rows.Cell = [](int col, int number) {
    return LoadedPosiRange().Holds(number) ? PosiCellText(col, number, AppState.CtMode)
                                           : std::string();
  };
  return Print(rows, HeadOfMachine(DevicesInUse(), NameOfTable()));
}

/// A cell of the stage, which holds pulses.
std::string StageText(int col, int number, bool mm) {
  const Variant& field = PosiTable.PosiStage[col][number];
  if (col == kComment) return TextOf(field);
  const int axis = AxisOfColumn(col);
  const double way = axis < 0 ? 0 : ValueOf(PosiTable.PosiStage[AxisBase(axis) + kWay][number]);
  if (axis >= 0 && FieldOfColumn(col) == kPosi && !mm) {
    return PosiPulseText(ValueOf(field), way, AppState.CtMode);
  }
  return PosiValueText(col, ValueOf(field), way, AppState.CtMode);
}

int MaskOf(const AxisArray<std::string>& devices) {
  int mask = 0;
  for (int axis = 0; axis < kAxes; ++axis) mask |= devices[axis].empty() ? 0 : 1 << axis;
  return mask;
}

/// Millimetres by the devices in use alone: positions of other devices are told in pulses.
Outcome PrintFile(const std::string& path) {
  const DevSetteiKept kept;
  if (!ReadPosiFileToStage(path)) return Outcome::Failed;
  PosiRows rows;
  for (int n = 1; n <= kPosiMaxNo; ++n) {
    if (PosiTable.StageHolds[n]) rows.Numbers.push_back(n);
  }
  rows.AxisMask = MaskOf(FileDevice);
  rows.Mm = AppState.DispMmUnit && FileDevice == DevicesInUse();
  rows.Cell = [mm = rows.Mm](int col, int number) { return StageText(col, number, mm); };
  return Print(rows, HeadOfMachine(FileDevice, FileTitle(path)));
}

Outcome PrintChosenPositions(const PrintChoice& choice) {
  return choice.PosiFile.empty() ? PrintShown(choice.Range) : PrintFile(choice.PosiFile);
}

Outcome PrintChosenParameters(const PrintChoice& choice) {
  return choice.ParaFile.empty() ? PrintShownPara() : PrintParaFile(choice.ParaFile);
}

}  // namespace

void PrintPositions() {
  EditCMD_Muko();
  const CommandsOff commands_off;
  const BusyScope busy;
  const PosiGridOff grid_off;
  const auto choice = AskPrintChoice();
  if (!choice) return;
  if (choice->Posi && PrintChosenPositions(*choice) != Outcome::Done) return;
  if (choice->Para) static_cast<void>(PrintChosenParameters(*choice));
}

}  // namespace tr7
