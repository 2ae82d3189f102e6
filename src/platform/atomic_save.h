#pragma once

#include <string>
#include <string_view>

#include "platform/files.h"

namespace tr7 {

/// Writes a new file in the same folder, flushes it to the disk, then gives it the name `path`.
/// On failure the old file is whole and no new one is left behind; when the power goes, either
/// file is whole under that name.
FileFault SaveAtomically(Files& files, const std::string& path, std::string_view bytes);

}  // namespace tr7
