#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace tr7 {

/// What is known of the windows beside the settings: it goes there at the end of the tool.
struct WindowStateRecord {
  std::map<std::string, std::string> notes;
  std::function<void()>
      NotePart;  ///< at the end: a part of the frame that is no view notes its own
};

extern WindowStateRecord WindowState;

/// At the end of the start: the views that were open at the last end open again, as far as the mode
/// and the line allow, and programs by their files; the one in front and the tabs are as they were.
void RestoreWindows();
/// At the end of the tool, while the views are still open.
void RememberWindows();

/// What is known under that key; none where nothing is, or a number lies outside.
std::vector<int> RecallNumbers(const std::string& key, int low, int high);
void NoteNumbers(const std::string& key, const std::vector<int>& numbers);

/// Lets every view come with the place, the pages and the column widths that it had last.
void InstallWindowState();

}  // namespace tr7
