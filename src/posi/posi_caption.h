#pragma once

#include <string>

namespace tr7 {

/// The table's name (a file path without its extension, "New Data", or "Inside of C/T") and the
/// view's caption: "Position Data-[name]".
void SetPosiTableName(const std::string& name);

/// Names the table after its file: the path less ".qvd" or whatever four characters end it.
void SetPosiTableFile(const std::string& path);

/// True when the table has a file of its own, and that file's path.
bool PosiTableHasFile();
std::string PosiTablePath();

}  // namespace tr7
