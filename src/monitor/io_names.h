#pragma once

#include <array>
#include <string>

#include "forms/frm_io_check_fg.h"

namespace tr7 {

/// The user's own names of the terminals, by the tables' rows. They belong to the wiring, so they
/// are the same in both modes.
struct IoNamesRecord {
  std::array<std::string, kInputRows> In;
  std::array<std::string, kOutputRows> Out;
};
extern IoNamesRecord IoNames;

inline constexpr int kLongestIoName = 24;  ///< characters

/// From the settings.
void LoadIoNames();
/// One that the user has typed, without blanks at its ends and on one line: it is kept in the
/// settings at once, and given back.
std::string KeepInputName(int row, const std::string& typed);
std::string KeepOutputName(int row, const std::string& typed);

/// The buttons: names to a file and from one. True where names have come in.
void SaveIoNames();
bool LoadIoNamesFromFile();

}  // namespace tr7
