#pragma once

#include <optional>

#include "base/setting_line.h"

namespace tr7 {

/// Saves all settings of this user to a file of his choice. `picked_language` is what the next
/// start speaks.
void ExportSettings(int picked_language);

/// Asks for a file of settings, tells what it would change here and asks again. The settings that
/// it holds, or nothing where the user or the file says no: nothing is changed then.
std::optional<SettingKeys> AskForSettings();

/// Puts them in the place of the present ones, but for what belongs to this screen, and has every
/// view that holds settings take them.
void PutImportedSettings(const SettingKeys& keys);

}  // namespace tr7
