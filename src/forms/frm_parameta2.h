#pragma once

#include <map>
#include <string>

#include "forms/control.h"
#include "forms/option_group.h"

namespace tr7 {

/// The parameters of the controller. Each group is a frame with a table: a label, then one column
/// an axis (AXIS1 to AXIS4), or one field where a row holds for the whole controller. Fields whose
/// unit is mm stand below the field of the same length in pulses.
struct FrmParameta2 : View {
  FrmParameta2();

  // Command strip on top: initial values and helpers, the controller, the file, printing.
  CommandButton cmdIniPrm{*this, "cmdIniPrm", 6001};
  CommandButton cmdCalculate{*this, "cmdCalculate", 6002};
  CommandButton cmdParaCompare{*this, "cmdParaCompare", 5320};
  Frame framController{*this, "framController", 5230};
  CommandButton cmdParaRead{*this, "cmdParaRead", 5200};
  CommandButton cmdParaWrite{*this, "cmdParaWrite", 5201};
  CommandButton cmdConpareCT{*this, "cmdConpareCT", 5202};
  Frame framFile{*this, "framFile", 5231};
  CommandButton cmdReadParaFile{*this, "cmdReadParaFile", 5204};
  CommandButton cmdSaveParaFile{*this, "cmdSaveParaFile", 5206};
  CommandButton cmdConpareFile{*this, "cmdConpareFile", 5207};
  Frame framPrint{*this, "framPrint", 6003};
  CommandButton cmdParaPrint{*this, "cmdParaPrint", 6004};
  CommandButton cmdParaFilePrint{*this, "cmdParaFilePrint", 6005};
  CommandButton cmdClose{*this, "cmdClose", 2202};

  // Column heads of the tables of per-axis rows: over HOME and AXIS, PG and ETC, SPECIAL.
  PerAxis<Label> lblAxis{*this, "lblAxis"};
  PerAxis<Label> lblAxisEtc{*this, "lblAxisEtc"};
  PerAxis<Label> lblAxisSp{*this, "lblAxisSp"};

  // HOME: rows 1 to 6, per axis.
  Frame framHome{*this, "framHome", 673};
  Label lblHomeOffset{*this, "lblHomeOffset", 6011};
  PerAxis<TextBox> txtHomeOffset{*this, "txtHomeOffset"};
  Label lblHomePush{*this, "lblHomePush", 6012};
  PerAxis<TextBox> txtHomePush{*this, "txtHomePush"};
  Label lblHomeVel{*this, "lblHomeVel", 6013};
  PerAxis<TextBox> txtHomeVel{*this, "txtHomeVel"};
  Label lblHomeOfsVel{*this, "lblHomeOfsVel", 6014};
  PerAxis<TextBox> txtHomeOfsVel{*this, "txtHomeOfsVel"};
  Label lblHomePushVel{*this, "lblHomePushVel", 6015};
  PerAxis<TextBox> txtHomePushVel{*this, "txtHomePushVel"};
  Label lblHomeOrder{*this, "lblHomeOrder", 6016};
  PerAxis<TextBox> txtHomeOrder{*this, "txtHomeOrder"};

  // AXIS: rows 7 to 13, per axis. The device is one row of three lists an axis, its text below.
  Frame framAxis{*this, "framAxis", 675};
  Label lblAxisStroke{*this, "lblAxisStroke", 6017};
  PerAxis<TextBox> txtAxisStroke{*this, "txtAxisStroke"};
  Label lblAxisMmStroke{*this, "lblAxisMmStroke", 6045};
  PerAxis<TextBox> txtAxisMmStroke{*this, "txtAxisMmStroke"};
  Label lblAxisLead{*this, "lblAxisLead", 6018};
  PerAxis<TextBox> txtAxisLead{*this, "txtAxisLead"};
  Label lblAxisPulse{*this, "lblAxisPulse", 6019};
  PerAxis<TextBox> txtAxisPulse{*this, "txtAxisPulse"};
  Label lblJogHighVel{*this, "lblJogHighVel", 6020};
  PerAxis<TextBox> txtJogHighVel{*this, "txtJogHighVel"};
  Label lblAxisAutoDrv{*this, "lblAxisAutoDrv", 6021};
  PerAxis<ComboBox> comboAxisAutoDrv{*this, "comboAxisAutoDrv"};
  Label lblEtcMaOrXa{*this, "lblEtcMaOrXa", 6022};
  PerAxis<ComboBox> comboEtcMaOrXa{*this, "comboEtcMaOrXa"};
  Label lblActSize{*this, "lblActSize", 6048};
  PerAxis<ComboBox> comboActSize{*this, "comboActSize"};
  Label lblActSpeed{*this, "lblActSpeed", 6049};
  PerAxis<ComboBox> comboActSpeed{*this, "comboActSpeed"};
  Label lblActStroke{*this, "lblActStroke", 6050};
  PerAxis<ComboBox> comboActStroke{*this, "comboActStroke"};
  Label lblActuator{*this, "lblActuator", 6023};
  PerAxis<TextBox> txtActuator{*this, "txtActuator"};  ///< follows the three lists, never edited

  // PG: rows 14 and 15, per axis.
  Frame framPg{*this, "framPg", 676};
  Label lblPgFunc{*this, "lblPgFunc", 6024};
  PerAxis<ComboBox> comboPgFunc{*this, "comboPgFunc"};
  Label lblPgAlarm{*this, "lblPgAlarm", 6025};
  PerAxis<TextBox> txtPgAlarm{*this, "txtPgAlarm"};

  // ETC: rows 16 to 19 for the controller, rows 20 to 24 per axis.
  Frame framEtc{*this, "framEtc", 677};
  Label lblHomeOut{*this, "lblHomeOut", 6026};
  TextBox txtHomeOut{*this, "txtHomeOut"};
  Label lblEtcGrpEnable{*this, "lblEtcGrpEnable", 6027};
  ComboBox comboEtcGrpEnable{*this, "comboEtcGrpEnable"};
  Label lblSmInTimer{*this, "lblSmInTimer", 6028};
  ComboBox comboSmInTimer{*this, "comboSmInTimer"};
  Label lblSmTimeoutTimer{*this, "lblSmTimeoutTimer", 6029};
  TextBox txtSmTimeoutTimer{*this, "txtSmTimeoutTimer"};
  Label lblZoneEnable{*this, "lblZoneEnable", 6030};
  PerAxis<ComboBox> comboZoneEnable{*this, "comboZoneEnable"};
  Label lblZoneSet1{*this, "lblZoneSet1", 6031};
  PerAxis<TextBox> txtZoneSet1{*this, "txtZoneSet1"};  ///< follows the field in mm, never edited
  Label lblMmZone1{*this, "lblMmZone1", 6046};
  PerAxis<TextBox> txtMmZone1{*this, "txtMmZone1"};
  Label lblZoneSet2{*this, "lblZoneSet2", 6032};
  PerAxis<TextBox> txtZoneSet2{*this, "txtZoneSet2"};  ///< follows the field in mm, never edited
  Label lblMmZone2{*this, "lblMmZone2", 6047};
  PerAxis<TextBox> txtMmZone2{*this, "txtMmZone2"};
  Label lblInpLimit{*this, "lblInpLimit", 6033};
  PerAxis<TextBox> txtInpLimit{*this, "txtInpLimit"};
  Label lblPushHoldTime{*this, "lblPushHoldTime", 6034};
  PerAxis<TextBox> txtPushHoldTime{*this, "txtPushHoldTime"};

  // SPECIAL, locked by the check box on top: rows 25 to 27 and 31 to 34 for the controller, rows 28
  // to 30 per axis. AXIS is one row: the list, the mask as a number beside it.
  Frame framSp{*this, "framSp", 678};
  CheckBox chkTokuParaChange{*this, "chkTokuParaChange", 6006};
  Label lblAutoStartPrgNo{*this, "lblAutoStartPrgNo", 6035};
  TextBox txtAutoStartPrgNo{*this, "txtAutoStartPrgNo"};
  Label lblOneAxis{*this, "lblOneAxis", 6036};
  ComboBox comboOneAxis{*this, "comboOneAxis"};  ///< index 0: one axis, 3: all four
  TextBox txtOneAxis{*this, "txtOneAxis"};
  Label lblAutoHome{*this, "lblAutoHome", 6037};
  ComboBox comboAutoHome{*this, "comboAutoHome"};
  Label lblPgCheckTimer{*this, "lblPgCheckTimer", 6038};
  PerAxis<TextBox> txtPgCheckTimer{*this, "txtPgCheckTimer"};
  Label lblLsSerchTimer{*this, "lblLsSerchTimer", 6039};
  PerAxis<TextBox> txtLsSerchTimer{*this, "txtLsSerchTimer"};
  Label lblSoftLimit{*this, "lblSoftLimit", 6040};
  PerAxis<ComboBox> comboSoftLimit{*this, "comboSoftLimit"};
  PerAxis<ComboBox> comboM0Disable{*this, "comboM0Disable"};  ///< stands for no row, always hidden
  // One row each: a label and two options side by side. The state of a group is its first option.
  Label lblEmgLogic{*this, "lblEmgLogic", 6041};
  OptionGroup<2> optEmgLogic{*this, "optEmgLogic", 1, {6065, 6066}};
  Label lblAlarmAutoClear{*this, "lblAlarmAutoClear", 6042};
  OptionGroup<2> optAlarmAutoClear{*this, "optAlarmAutoClear", 2, {6058, 6057}};
  Label lblPosPrg{*this, "lblPosPrg", 6043};
  OptionGroup<2> optPosPrg{*this, "optPosPrg", 3, {129, 128}};
  Label lblStopPause{*this, "lblStopPause", 6044};
  OptionGroup<2> optStopPause{*this, "optStopPause", 4, {6058, 6057}};

  /// What the fields held when they last agreed with a file or the controller.
  std::string SavedContent;
  std::string FilePath;         ///< the file that the fields are from; empty: none
  bool CommandsAreOff = false;  ///< a flow runs: fields and buttons are off
  bool RefusalShown = false;    ///< the status bar tells why a field was emptied
  std::string EnteredText;      ///< what the field held when the focus came to it
  /// What the fields that were emptied held before, by the field's name.
  std::map<std::string, std::string> FormerTexts;
  std::array<bool, 4> LiveColumns{};  ///< columns that show an axis
};

inline Standing<FrmParameta2> frmParameta2;

}  // namespace tr7
