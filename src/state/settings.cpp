#include "state/settings.h"

#include <cmath>

#include "base/text_helpers.h"
#include "forms/frm_main.h"
#include "platform/doors.h"
#include "state/app_state.h"

namespace tr7 {
namespace {

constexpr const char* kSection = "Settings";

std::int16_t OneIfOutside(std::int16_t value, int low, int high) {
  return value < low || value > high ? std::int16_t{1} : value;
}

}  // namespace

std::string GetSetting(const std::string& key, const std::string& fallback) {
  return doors.settings->Get(kSection, key, fallback);
}

double GetSettingNumber(const std::string& key, double fallback) {
  return Val(GetSetting(key, PlainDecimal(fallback)));
}

std::int16_t GetSettingInt16(const std::string& key, int fallback) {
  const double value = GetSettingNumber(key, fallback);
  if (!(value >= -32768 && value <= 32767)) return 0;
  return static_cast<std::int16_t>(std::lround(value));
}

void PutSetting(const std::string& key, const std::string& value) {
  doors.settings->Set(kSection, key, value);
}

void PutSetting(const std::string& key, int value) { PutSetting(key, std::to_string(value)); }

SettingKeys AllSettings() { return doors.settings->All(kSection); }
bool ReplaceSettings(const SettingKeys& keys) { return doors.settings->Replace(kSection, keys); }

void LoadSettingLanguage() {
  AppState.LanguageNo = GetSettingInt16("Language", 1);
  AppState.LangOffset = AppState.LanguageNo == 1 ? 0 : 10000;
}

void LoadSettingPortNo() {
  AppState.PortNo = GetSettingInt16("PortNo", 1);
  if (AppState.PortNo < 1 || AppState.PortNo > 9) AppState.PortNo = 1;
}

void LoadSettingPortOccupy() { AppState.PortOccupy = GetSettingNumber("PortOccupy", 1) > 0; }
void LoadSettingMmRoundUp() { AppState.MmRoundUp = GetSettingNumber("MmRoundUp", 1) > 0; }
void LoadSettingDispMmUnit() { AppState.DispMmUnit = GetSettingNumber("DispMmUnit", 1) > 0; }

void LoadDefaults() {
  LoadSettingLanguage();
  LoadSettingPortNo();
  LoadSettingPortOccupy();
  LoadSettingMmRoundUp();
}

void LoadMotionSettings() {
  AppState.VelOf100Pls = OneIfOutside(GetSettingInt16("VelOf100Pls", 20), 1, 60);
  // These two are taken as stored, also outside 1 to 3.
  AppState.AccOf100Pls = GetSettingInt16("AccOf100Pls", 3);
  AppState.AccOf100Pls2 = GetSettingInt16("AccOf100Pls2", 3);
  AppState.AccOfJog = OneIfOutside(GetSettingInt16("AccOfJog", 3), 1, 3);
  AppState.AccOfJog2 = OneIfOutside(GetSettingInt16("AccOfJog2", 2), 1, 3);
}

void SaveSettingsAtExit() {
  PutSetting("PortNo", AppState.PortNo);
  if (AppState.LanguageChanged) AppState.LanguageNo = AppState.LanguageNo == 1 ? 2 : 1;
  PutSetting("Language", AppState.LanguageNo);
  if (frmMain.Minimised) return;
  PutSetting("MainMaximised", frmMain.Maximised ? 1 : 0);
  PutSetting("MainLeft", PlainDecimal(frmMain.Left));
  PutSetting("MainTop", PlainDecimal(frmMain.Top));
  PutSetting("MainWidth", PlainDecimal(frmMain.Width));
  PutSetting("MainHeight", PlainDecimal(frmMain.Height));
}

}  // namespace tr7
