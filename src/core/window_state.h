#pragma once

#include <map>
#include <string>

namespace tr7 {

/// What is known of the windows beside the settings: it goes there at the end of the tool.
struct WindowStateRecord {
  std::map<std::string, std::string> notes;
};

extern WindowStateRecord WindowState;

/// At the end of the start: the views that were open at the last end open again, as far as the mode
/// and the line allow, and programs by their files; the one in front and the tabs are as they were.
void RestoreWindows();
/// At the end of the tool, while the views are still open.
void RememberWindows();

/// Lets every view come with the place, the pages and the column widths that it had last.
void InstallWindowState();

}  // namespace tr7
