#pragma once

#include <string>

namespace tr7 {

/// Opens a file in the view of its kind, which its head tells, with that view's own questions. A
/// file of no kind that is opened, or of the other mode's, is refused with the reason; while a flow
/// runs nothing is opened.
void OpenFileByPath(const std::string& path);

/// Nothing stands against it now: the start is over, nobody is asked, no command runs, nobody
/// teaches and nothing moves.
[[nodiscard]] bool MayOpenFile();

/// The File menu's lists of recent files.
void InstallRecentFiles();

}  // namespace tr7
