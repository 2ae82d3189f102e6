#pragma once

#include <QIcon>
#include <string>

namespace tr7 {

/// The picture of a tool bar button by its key, drawn at whatever size is asked for.
QIcon ToolIcon(const std::string& key);

/// The picture of a message box: "Information", "Question", "Warning" or "Error".
QIcon MessageIcon(const std::string& kind);

/// The sign of a command that goes online by itself.
QIcon ConnectIcon();

/// The program's own picture.
QIcon ProgramIcon();

}  // namespace tr7
