#pragma once

#include <functional>
#include <optional>
#include <string>

#include "base/msg_id.h"
#include "posi/posi_file.h"
#include "steps/file_steps.h"

namespace tr7 {

/// Position files in the file dialogues.
inline constexpr DataFile kPosiDataFile{FileKind::Position, 351, "qvd", 407};

/// The save flow: checks the whole table and saves it to its file, or to one that the user names.
void PosidataSaveToFile();

/// The save flow for another file and, if the user wants, for a part of the table.
void PosiDataSaveAs();

/// What a result of the file's reader or writer (0 or 1) and its trouble say of another attempt.
Attempt AttemptOf(int result, const PosiFileTrouble& trouble);

/// The position file read last is for the mode in use. False after the user has been told.
[[nodiscard]] bool FileIsOfThisMode();

/// Up to four attempts at a file. True when the stage holds it and it is of the present mode;
/// otherwise the user knows why not.
[[nodiscard]] bool ReadPosiFileToStage(const std::string& path);

}  // namespace tr7
