#include "core/options_view.h"

#include <algorithm>
#include <string>
#include <vector>

#include "base/text_helpers.h"
#include "core/settings_exchange.h"
#include "forms/frm_options2.h"
#include "link/port.h"
#include "platform/doors.h"
#include "posi/unit_change.h"
#include "session/followers.h"
#include "session/open_port.h"
#include "state/app_state.h"
#include "state/busy_scope.h"
#include "state/message_box.h"
#include "state/settings.h"
#include "state/text.h"
#include "state/views.h"

namespace tr7 {
namespace {

constexpr const char* kSimDevice = "sim";
constexpr int kMsgPortChanged = 5971;
constexpr int kMsgPortRow = 5942;
constexpr int kMsgNoPortNumber = 7194;
constexpr int kPortTab = 0, kPosiTab = 1, kUnitTab = 2, kLanguageTab = 3;

constexpr int kLastTypedPort = 3, kLastPort = 9;

/// Device names in the order of the combo box; a row behind them stands for a port number.
std::vector<std::string> listed_devices;

int TypedPortNo() { return static_cast<int>(Val(frmOptions2.txtPortNo.Text)); }

bool IsPortNo(int number) { return number >= 1 && number <= kLastPort; }

/// The port that OK takes: what is no port number leaves the present one.
int PortToTake() { return IsPortNo(TypedPortNo()) ? TypedPortNo() : AppState.PortNo; }

/// Of the port that OK takes, also while the number is being typed: an empty field wipes no device.
void ShowDeviceOfPort() {
  ComboBox& combo = frmOptions2.comboPortDevice;
  const std::string device = PortDevice(PortToTake());
  const auto found = std::find(listed_devices.begin(), listed_devices.end(), device);
  const bool listed = found != listed_devices.end();
  combo.ListIndex = listed ? static_cast<int>(found - listed_devices.begin()) : -1;
  combo.TypedText = device;
}

/// The devices that are there, then the port numbers that the number's field does not take.
void ListDevices() {
  ComboBox& combo = frmOptions2.comboPortDevice;
  combo.Clear();
  listed_devices = doors.serial->PortNames();
  for (const std::string& name : listed_devices) combo.AddItem(name, 0);
  listed_devices.emplace_back(kSimDevice);
  combo.AddItem(Text(5304), 0);
  for (int number = kLastTypedPort + 1; number <= kLastPort; ++number) {
    combo.AddItem(Text(kMsgPortRow, std::to_string(number), PortDevice(number)), number);
  }
}

/// A port number's row turns to that number and shows its device.
void ChooseDevice() {
  const ComboBox& combo = frmOptions2.comboPortDevice;
  const int number = combo.ItemData[combo.ListIndex];
  if (number == 0) return;
  frmOptions2.txtPortNo.Text = std::to_string(number);
  ShowDeviceOfPort();
}

/// The device to be set for the port: one of the list, or a path as it was typed.
std::string ChosenDevice() {
  const ComboBox& combo = frmOptions2.comboPortDevice;
  if (combo.ListIndex < 0) return Trim(combo.TypedText);
  return listed_devices[combo.ListIndex];
}

void ShowTab() {
  FrmOptions2& f = frmOptions2;
  const int tab = f.tabOptions.Selected;
  for (Control* control :
       std::initializer_list<Control*>{&f.lblPortNo, &f.txtPortNo, &f.lblPortHint, &f.lblPortDevice,
                                       &f.comboPortDevice, &f.chkPortOccupy}) {
    control->Visible = tab == kPortTab;
  }
  for (Control* control :
       std::initializer_list<Control*>{&f.lblRounding, &f.optRoundUp, &f.optRoundDown}) {
    control->Visible = tab == kPosiTab;
  }
  for (Control* control :
       std::initializer_list<Control*>{&f.lblUnit, &f.optUnitMm, &f.optUnitPulse}) {
    control->Visible = tab == kUnitTab;
  }
  for (Control* control :
       std::initializer_list<Control*>{&f.lblLanguage, &f.optJapanese, &f.optEnglish}) {
    control->Visible = tab == kLanguageTab;
  }
}

/// What the next start speaks.
bool JapaneseIsPicked() { return (AppState.LanguageNo == 1) != AppState.LanguageChanged; }

void ShowPresent() {
  FrmOptions2& f = frmOptions2;
  f.txtPortNo.Text = std::to_string(AppState.PortNo);
  ListDevices();
  ShowDeviceOfPort();
  f.chkPortOccupy.Value = AppState.PortOccupy;
  (AppState.MmRoundUp ? f.optRoundUp : f.optRoundDown).Choose();
  (AppState.DispMmUnit ? f.optUnitMm : f.optUnitPulse).Choose();
  (JapaneseIsPicked() ? f.optJapanese : f.optEnglish).Choose();
}

void LoadOptions() {
  frmOptions2.tabOptions.Selected = kPortTab;
  ShowPresent();
  ShowTab();
}

/// Another port may lead to another machine: nothing that was learned of the former holds there.
void LeavePort() {
  Followers.AnotherController();
  if (AppState.Offline) {
    TusinPortCloseForce();
    return;
  }
  const CommandsOff commands_off;
  EndSession();
  MsgBox(Text(kMsgPortChanged), MsgButtons::Ok, MsgIcon::Information);
}

void TakePort() {
  const int typed = TypedPortNo();
  const std::string before = PortDevice(AppState.PortNo);
  const std::string key = "PortDevice" + std::to_string(AppState.PortNo);
  const bool other = PortToTake() != AppState.PortNo || ChosenDevice() != GetSetting(key, "");
  // While the port is the same.
  if (Followers.StopBeforeTheEnd) Followers.StopBeforeTheEnd();
  if (!IsPortNo(typed)) MsgBox(Text(kMsgNoPortNumber, std::to_string(AppState.PortNo)));
  if (other && Followers.TakeBackBeforeTheEnd) Followers.TakeBackBeforeTheEnd();
  if (IsPortNo(typed)) {
    AppState.PortNo = static_cast<std::int16_t>(typed);
  } else {
    LoadSettingPortNo();
  }
  const std::string device = ChosenDevice();
  if (!device.empty() || !PortDevice(AppState.PortNo).empty()) {
    PutSetting("PortDevice" + std::to_string(AppState.PortNo), device);
  }
  PutSetting("PortNo", AppState.PortNo);
  if (PortDevice(AppState.PortNo) != before) LeavePort();
  PortLampHyoji();
}

void TakeUnit(bool mm) {
  if (mm == AppState.DispMmUnit) return;
  // The grid still holds the old unit's texts: they are taken into the table before it changes.
  if (!CheckInPlace()) {
    MsgBox(TwoLines(2541, 2542));
    return;
  }
  ShowInUnit(mm);
}

void TakeOptions() {
  FrmOptions2& f = frmOptions2;
  TakePort();
  AppState.LanguageChanged = f.optJapanese.Value != (AppState.LanguageNo == 1);
  TakeUnit(f.optUnitMm.Value);
  AppState.MmRoundUp = f.optRoundUp.Value;
  PutSetting("MmRoundUp", AppState.MmRoundUp ? 1 : 0);
  AppState.PortOccupy = f.chkPortOccupy.Value;
  PutSetting("PortOccupy", AppState.PortOccupy ? 1 : 0);
  if (!AppState.PortOccupy && !AppState.ComBusy) TusinPortClose();
  if (AppState.LanguageChanged) MsgBox(TwoLines(420, 421), MsgButtons::Ok, MsgIcon::Information);
}

/// Shows the options that a file holds as if the user had chosen them.
void ShowOptionsOf(const SettingKeys& keys) {
  FrmOptions2& f = frmOptions2;
  const auto text_of = [&keys](const std::string& key) {
    const auto found = keys.find(key);
    return found == keys.end() ? std::string() : found->second;
  };
  const auto number = [&](const char* key) { return keys.contains(key) ? Val(text_of(key)) : 1; };
  const int port = static_cast<int>(std::clamp(number("PortNo"), 0.0, 10.0));
  f.txtPortNo.Text = std::to_string(IsPortNo(port) ? port : 1);
  f.comboPortDevice.ListIndex = -1;
  f.comboPortDevice.TypedText = text_of("PortDevice" + f.txtPortNo.Text);
  f.chkPortOccupy.Value = number("PortOccupy") > 0;
  (number("MmRoundUp") > 0 ? f.optRoundUp : f.optRoundDown).Choose();
  (number("DispMmUnit") > 0 ? f.optUnitMm : f.optUnitPulse).Choose();
  (number("Language") == 1 ? f.optJapanese : f.optEnglish).Choose();
}

/// The options of the file go the way of an OK, and what they end as holds, also where one of them
/// was refused; the other settings follow.
void ImportSettings() {
  auto keys = AskForSettings();
  if (!keys) return;
  ShowOptionsOf(*keys);
  TakeOptions();
  (*keys)["PortNo"] = std::to_string(AppState.PortNo);
  const std::string device_key = "PortDevice" + (*keys)["PortNo"];
  (*keys)[device_key] = GetSetting(device_key, "");  // as it was taken, without blanks at its ends
  (*keys)["DispMmUnit"] = AppState.DispMmUnit ? "1" : "0";
  PutImportedSettings(*keys);
  PortLampHyoji();
  ShowPresent();
}

void Close() { frmOptions2.Visible = false; }

}  // namespace

void ShowOptions() { ShowViewModal(frmOptions2); }

void ChangeUnit() {
  const CommandsOff commands_off;
  TakeUnit(!AppState.DispMmUnit);
}

void InstallOptionsView() {
  FrmOptions2& f = frmOptions2;
  f.Load = LoadOptions;
  f.tabOptions.Click = ShowTab;
  // The digits that the field takes; the number's own range is 1 to 9 and is checked by OK.
  f.txtPortNo.AllowedChars = "0123";
  f.txtPortNo.Change = ShowDeviceOfPort;
  f.comboPortDevice.Click = ChooseDevice;
  f.txtPortNo.Enter = [] { doors.forms->SetFocus(frmOptions2.cmdOk); };
  f.cmdOk.Click = [] {
    TakeOptions();
    Close();
  };
  // Apply closes without taking anything, as Cancel does: that is how this view has always worked.
  f.cmdApply.Click = Close;
  f.cmdCancel.Click = Close;
  f.cmdExport.Click = [] { ExportSettings(JapaneseIsPicked() ? 1 : 2); };
  f.cmdImport.Click = ImportSettings;
}

}  // namespace tr7
