#include "steps/file_steps.h"

#include "platform/doors.h"
#include "state/text.h"
#include "state/wait.h"

namespace tr7 {
namespace {

constexpr int kTries = 4;
constexpr int kPauseMs = 100;

}  // namespace

std::optional<std::string> AskOpenPath(const DataFile& kind, MsgId title_id) {
  FileDialogCall call;
  call.Title = Text(title_id);
  call.Filter = Text(kind.filter_id);
  call.DefaultExtension = kind.extension;
  return doors.forms->FileDialog(call);
}

std::optional<std::string> AskSavePath(const DataFile& kind, MsgId title_id) {
  const auto path = doors.forms->FileDialog({.Save = true,
                                             .Title = Text(title_id),
                                             .Filter = Text(kind.filter_id),
                                             .ProposedName = Text(kind.proposed_name_id),
                                             .DefaultExtension = kind.extension,
                                             .OverwritePrompt = true});
  return path && path->empty() ? std::nullopt : path;
}

bool TryFourTimes(const std::function<Attempt()>& attempt) {
  for (int tries = 1;; ++tries) {
    const Attempt ended = attempt();
    if (ended == Attempt::Good) return true;
    if (ended == Attempt::Useless || tries == kTries) return false;
    TusinWaitMs(kPauseMs);
  }
}

}  // namespace tr7
