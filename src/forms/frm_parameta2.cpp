#include "forms/frm_parameta2.h"

namespace tr7 {
namespace {

template <typename Kind>
std::vector<Control*> All(PerAxis<Kind>& controls) {
  std::vector<Control*> all;
  for (Kind& control : controls) all.push_back(&control);
  return all;
}

template <std::size_t Count>
std::vector<Control*> All(OptionGroup<Count>& options) {
  std::vector<Control*> all;
  for (OptionButton& option : options) all.push_back(&option);
  return all;
}

template <typename Fields>
FieldRow AxisRow(Label& name, Fields& fields) {
  return {&name, All(fields)};
}

FieldRow OneField(Label& name, Control& field) { return {&name, {&field}}; }

template <std::size_t Count>
FieldRow Choice(Label& name, OptionGroup<Count>& options) {
  return {&name, All(options), true};
}

/// The tables of the view, from the top of each tab down.
std::vector<FieldTable> TablesOf(FrmParameta2& f) {
  return {
      {"areaTableHome",
       All(f.lblAxis),
       {AxisRow(f.lblHomeOffset, f.txtHomeOffset), AxisRow(f.lblHomePush, f.txtHomePush),
        AxisRow(f.lblHomeVel, f.txtHomeVel), AxisRow(f.lblHomeOfsVel, f.txtHomeOfsVel),
        AxisRow(f.lblHomePushVel, f.txtHomePushVel), AxisRow(f.lblHomeOrder, f.txtHomeOrder)}},
      {"areaTableAxis",
       {},
       {AxisRow(f.lblAxisStroke, f.txtAxisStroke), AxisRow(f.lblAxisMmStroke, f.txtAxisMmStroke),
        AxisRow(f.lblAxisLead, f.txtAxisLead), AxisRow(f.lblAxisPulse, f.txtAxisPulse),
        AxisRow(f.lblJogHighVel, f.txtJogHighVel), AxisRow(f.lblAxisAutoDrv, f.comboAxisAutoDrv),
        AxisRow(f.lblEtcMaOrXa, f.comboEtcMaOrXa), AxisRow(f.lblActSize, f.comboActSize),
        AxisRow(f.lblActSpeed, f.comboActSpeed), AxisRow(f.lblActStroke, f.comboActStroke),
        AxisRow(f.lblActuator, f.txtActuator)}},
      {"areaTablePg",
       All(f.lblAxisEtc),
       {AxisRow(f.lblPgFunc, f.comboPgFunc), AxisRow(f.lblPgAlarm, f.txtPgAlarm)}},
      {"areaTableEtcAxis",
       {},
       {AxisRow(f.lblZoneEnable, f.comboZoneEnable), AxisRow(f.lblZoneSet1, f.txtZoneSet1),
        AxisRow(f.lblMmZone1, f.txtMmZone1), AxisRow(f.lblZoneSet2, f.txtZoneSet2),
        AxisRow(f.lblMmZone2, f.txtMmZone2), AxisRow(f.lblInpLimit, f.txtInpLimit),
        AxisRow(f.lblPushHoldTime, f.txtPushHoldTime)}},
      {"areaTableEtc",
       {},
       {OneField(f.lblHomeOut, f.txtHomeOut), OneField(f.lblEtcGrpEnable, f.comboEtcGrpEnable),
        OneField(f.lblSmInTimer, f.comboSmInTimer),
        OneField(f.lblSmTimeoutTimer, f.txtSmTimeoutTimer)}},
      {"areaTableSp",
       {},
       {OneField(f.lblAutoStartPrgNo, f.txtAutoStartPrgNo),
        {&f.lblOneAxis, {&f.comboOneAxis, &f.txtOneAxis}, true},
        OneField(f.lblAutoHome, f.comboAutoHome),
        Choice(f.lblEmgLogic, f.optEmgLogic),
        Choice(f.lblAlarmAutoClear, f.optAlarmAutoClear),
        Choice(f.lblPosPrg, f.optPosPrg),
        Choice(f.lblStopPause, f.optStopPause)}},
      {"areaTableSpAxis",
       All(f.lblAxisSp),
       {AxisRow(f.lblPgCheckTimer, f.txtPgCheckTimer),
        AxisRow(f.lblLsSerchTimer, f.txtLsSerchTimer), AxisRow(f.lblSoftLimit, f.comboSoftLimit)}},
  };
}

}  // namespace

FrmParameta2::FrmParameta2() : View("frmParameta2", 6000) {
  HelpPage = "parameters";
  MdiChild = true;
  Width = 14400;
  Height = 9900;
  for (int axis = 0; axis < 4; ++axis) {
    lblAxis[axis].Tag = lblAxisEtc[axis].Tag = lblAxisSp[axis].Tag = MsgId::At(220, axis);
    comboM0Disable[axis].Visible = false;
  }
  Tables = TablesOf(*this);
}

}  // namespace tr7
