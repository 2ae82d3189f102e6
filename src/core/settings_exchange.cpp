#include "core/settings_exchange.h"

#include <cstddef>
#include <string>

#include "monitor/io_view.h"
#include "monitor/poll.h"
#include "motion/motion_now.h"
#include "platform/atomic_save.h"
#include "platform/doors.h"
#include "state/app_state.h"
#include "state/message_box.h"
#include "state/settings.h"
#include "state/settings_text.h"
#include "state/text.h"
#include "state/text_file.h"
#include "steps/file_steps.h"

namespace tr7 {
namespace {

constexpr DataFile kFile{FileKind::Unknown, 7154, "qvs", 7155};
constexpr int kExportTitle = 7156, kImportTitle = 7157, kSaved = 7158, kNotSaved = 7159,
              kNotTaken = 7160, kWillTake = 7161, kWillGo = 7162, kAskToLose = 7163, kTaken = 7164,
              kNotKept = 7165, kNotNow = 7166, kOfNoKind = 7167;
/// Far below what the settings' own file may be.
constexpr std::size_t kLimit = 256u << 10;

/// A port that changes ends the session: not under what has the line or moves axes.
bool MayImportNow() {
  const bool moves = SomethingMoves() || MotionIsComing() || AppState.TeachingNow;
  if (!moves && !FlowHoldsLine()) return true;
  Tell(kNotNow);
  return false;
}

std::string FaultWords(const std::string& path, const std::string& bytes, int line) {
  const std::string title = FileTitle(path);
  const bool no_kind = line == 1 && KindOfFile(bytes) == FileKind::Unknown;
  return no_kind ? AtLine(line, Text(kOfNoKind, title))
                 : ListFault(title, bytes, FileKind::Unknown, line);
}

/// The settings of a file; nothing where it is refused, which is told.
std::optional<SettingKeys> ReadFile(const std::string& path) {
  std::string bytes;
  const FileFault fault = doors.files->Read(path, kLimit, bytes);
  if (fault != FileFault::None) {
    MsgBox(WithReason(Text(kNotTaken), FileFaultWords(fault, path)));
    return std::nullopt;
  }
  SettingsRead read = ReadSettingsText(bytes);
  if (read.bad_line == 0) return std::move(read.keys);
  MsgBox(WithReason(Text(kNotTaken), FaultWords(path, bytes, read.bad_line)));
  return std::nullopt;
}

std::string Question(const SettingKeys& keys) {
  const SettingsChange change = CompareSettings(keys, AllSettings());
  std::string question = Text(kWillTake, std::to_string(keys.size()), std::to_string(change.other));
  if (change.gone > 0) question += "\n" + Text(kWillGo, std::to_string(change.gone));
  return WithReason(question, Text(kAskToLose));
}

}  // namespace

void ExportSettings(int picked_language) {
  const auto path = AskSavePath(kFile, kExportTitle);
  if (!path) return;
  SettingKeys keys = AllSettings();
  keys["Language"] = std::to_string(picked_language);
  const FileFault fault = SaveAtomically(*doors.files, *path, SettingsAsText(keys));
  if (fault == FileFault::None) return TellDone(kSaved);
  MsgBox(WithReason(Text(kNotSaved), FileFaultWords(fault, *path)));
}

std::optional<SettingKeys> AskForSettings() {
  if (!MayImportNow()) return std::nullopt;
  const auto path = AskOpenPath(kFile, kImportTitle);
  if (!path || path->empty()) return std::nullopt;
  auto keys = ReadFile(*path);
  if (!keys || !AskToLose(Question(*keys))) return std::nullopt;
  // Something may have begun while the user chose and answered.
  if (!MayImportNow()) return std::nullopt;
  return keys;
}

void PutImportedSettings(const SettingKeys& keys) {
  const bool kept = ReplaceSettings(SettingsBehindImport(keys, AllSettings()));
  LoadMotionSettings();
  FollowIoSettings();
  MsgBox(WithReason(Text(kTaken), kept ? std::string() : Text(kNotKept)), MsgButtons::Ok,
         kept ? MsgIcon::Information : MsgIcon::Warning);
}

}  // namespace tr7
