#pragma once

#include <functional>
#include <optional>
#include <string>

#include "base/msg_id.h"
#include "posi/posi_file.h"

namespace tr7 {

/// The save flow: checks the whole table and saves it to its file, or to one that the user names.
void PosidataSaveToFile();

/// The save flow for another file and, if the user wants, for a part of the table.
void PosiDataSaveAs();

/// Asks for a file to open; nothing on Cancel.
std::optional<std::string> AskOpenPath(MsgId title_id);

/// Up to four attempts, 100 ms apart, as long as the trouble may pass. 0: one was good.
int TryFourTimes(const std::function<int(PosiFileTrouble&)>& attempt, PosiFileTrouble& trouble);

/// A message, and behind it the reason where there is one.
std::string WithReason(MsgId message_id, const PosiFileTrouble& trouble);

}  // namespace tr7
