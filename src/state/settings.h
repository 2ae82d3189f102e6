#pragma once

#include <cstdint>
#include <string>

#include "base/setting_line.h"

namespace tr7 {

/// Text under a key of section "Settings", or the fallback when it is absent.
std::string GetSetting(const std::string& key, const std::string& fallback);
/// Its number: a text that is no number reads as 0.
double GetSettingNumber(const std::string& key, double fallback);
/// Its number as a 16-bit field takes it: what does not fit counts as no number.
std::int16_t GetSettingInt16(const std::string& key, int fallback);
void PutSetting(const std::string& key, const std::string& value);
void PutSetting(const std::string& key, int value);
/// All keys of section "Settings", and these keys in their place; false when they hold for this run
/// alone.
SettingKeys AllSettings();
[[nodiscard]] bool ReplaceSettings(const SettingKeys& keys);

/// One key each into `AppState`; the language sets `LanguageNo` and `LangOffset`.
void LoadSettingLanguage();
void LoadSettingPortNo();
void LoadSettingPortOccupy();
void LoadSettingMmRoundUp();
void LoadSettingDispMmUnit();

/// Language, port number, port occupation and rounding, in this order.
void LoadDefaults();

/// Speed and acceleration of inching moves (also known as LoadJogSettings).
void LoadMotionSettings();

/// Port number, language (with a change that was picked) and the frame's rectangle, unless the
/// frame is minimised.
void SaveSettingsAtExit();

}  // namespace tr7
