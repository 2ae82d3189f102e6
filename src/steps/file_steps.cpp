#include "steps/file_steps.h"

#include <utility>

#include "platform/doors.h"
#include "state/files_here.h"
#include "state/message_box.h"
#include "state/recent_files.h"
#include "state/text.h"
#include "state/text_file.h"
#include "state/wait.h"

namespace tr7 {
namespace {

constexpr int kTries = 4;
constexpr int kPauseMs = 100;

std::optional<std::string> given_path;

}  // namespace

GivenPath::GivenPath(std::string path) { given_path = std::move(path); }
GivenPath::~GivenPath() { given_path.reset(); }

std::optional<std::string> AskOpenPath(const DataFile& kind, MsgId title_id) {
  auto path = std::exchange(given_path, std::nullopt);
  if (!path) {
    FileDialogCall call;
    call.Title = Text(title_id);
    call.Filter = Text(kind.filter_id);
    call.DefaultExtension = kind.extension;
    path = doors.forms->FileDialog(call);
  }
  if (path && !path->empty()) RememberFile(kind.kind, *path);
  return path;
}

std::optional<std::string> AskSavePath(const DataFile& kind, MsgId title_id) {
  const auto path = doors.forms->FileDialog({.Save = true,
                                             .Title = Text(title_id),
                                             .Filter = Text(kind.filter_id),
                                             .ProposedName = Text(kind.proposed_name_id),
                                             .DefaultExtension = kind.extension,
                                             .OverwritePrompt = true});
  if (!path || path->empty() || !MayReplaceFile(*path)) return std::nullopt;
  RememberFile(kind.kind, *path);
  return path;
}

bool MayReplaceFile(const std::string& path) {
  constexpr int kMsgChangedOutside = 7193;
  return !FileIsChangedOutside(path) || AskYesToLose(Text(kMsgChangedOutside, FileTitle(path)));
}

bool MayLoseUnsaved(MsgId question_id, const std::function<bool()>& save) {
  const MsgAnswer answer = AskYesNoCancel(question_id);
  return answer == MsgAnswer::No || (answer == MsgAnswer::Yes && save());
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
