#include "prog/command_list.h"

#include <algorithm>

#include "base/seq_file.h"
#include "prog/vocabulary.h"
#include "state/file_kind.h"
#include "state/message_box.h"
#include "state/text.h"
#include "state/text_file.h"

namespace tr7 {

CommandListRecord CommandList;

namespace {

constexpr const char* kFile = "Command.lst";
constexpr int kMostNames = 256;  // two digits of the line
constexpr int kMsgOtherLength = 7056;

bool ReadNames(SeqReader& items, std::vector<std::string>& names) {
  int count = 0;
  if (!items.ReadInteger(0, kMostNames, count)) return false;
  names.resize(static_cast<std::size_t>(count));
  return std::all_of(names.begin(), names.end(),
                     [&items](std::string& name) { return items.ReadText(name); });
}

/// False with the reason; it may be empty.
bool ReadFile(std::vector<std::string>& names, std::string& reason) {
  std::string text;
  if (!ReadListFile(kFile, text, reason)) return false;
  SeqReader items(text);
  if (ReadNames(items, names)) return true;
  reason = ListFault(kFile, text, FileKind::CommandList, items.Line());
  return false;
}

}  // namespace

int ReadCommandLst() {
  CommandList.CmdList.clear();
  CommandList.CmdCount = 0;
  std::vector<std::string> names;
  std::string reason;
  if (!ReadFile(names, reason)) {
    MsgBox(WithReason(TwoLines(15, 16), reason));
    return 1;
  }
  CommandList.CmdCount = static_cast<int>(names.size());
  CommandList.CmdList = std::move(names);
  if (CommandList.CmdCount != kCommands && !CommandList.LengthTold) {
    CommandList.LengthTold = true;
    MsgBox(Text(kMsgOtherLength, std::to_string(CommandList.CmdCount), std::to_string(kCommands)));
  }
  return 0;
}

int SeekCmdCode(std::string_view name) {
  const auto& names = CommandList.CmdList;
  const auto found = std::find(names.begin(), names.end(), name);
  return found == names.end() ? -1 : static_cast<int>(found - names.begin());
}

std::string CmdName(int code) {
  return code >= 0 && code < CommandList.CmdCount
             ? CommandList.CmdList[static_cast<std::size_t>(code)]
             : std::string();
}

}  // namespace tr7
