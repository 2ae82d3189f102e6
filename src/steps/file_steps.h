#pragma once

#include <functional>
#include <optional>
#include <string>

#include "base/msg_id.h"
#include "state/file_kind.h"

namespace tr7 {

/// What the file dialogues of one kind of data show, by message ids.
struct DataFile {
  FileKind kind;
  MsgId filter_id;
  const char* extension;
  MsgId proposed_name_id;
};

/// A file that the user has named already, on the command line or in a list. While this lives, the
/// next question for a file to open is answered with it.
class GivenPath {
 public:
  explicit GivenPath(std::string path);
  ~GivenPath();
  GivenPath(const GivenPath&) = delete;
  GivenPath& operator=(const GivenPath&) = delete;
};

/// Asks for a file to open; nothing on Cancel, an empty path where no name was given. A file that
/// was chosen here or at a save stands among the kind's recent ones from then on.
[[nodiscard]] std::optional<std::string> AskOpenPath(const DataFile& kind, MsgId title_id);

/// Asks for a file to save to, with a question before an old one is replaced; nothing on Cancel or
/// without a name, or where the user leaves it as another program has it now.
[[nodiscard]] std::optional<std::string> AskSavePath(const DataFile& kind, MsgId title_id);

/// A save to the file of a view may replace what stands there. Asks where another program has
/// changed it since; a file that is no view's has been asked about in the dialogue that named it.
[[nodiscard]] bool MayReplaceFile(const std::string& path);

/// The question ahead of an open.
inline constexpr int kAskSaveBeforeOpen = 6450;

/// Ahead of what replaces or closes unsaved data: the user may have them saved first. False: they
/// are to be kept, or `save` has not saved them.
[[nodiscard]] bool MayLoseUnsaved(MsgId question_id, const std::function<bool()>& save);

/// How one attempt at a file ended.
enum class [[nodiscard]] Attempt{
    Good,
    MayPass,  ///< a fault that another attempt may not meet
    Useless,  ///< another attempt ends the same way
};

/// Up to four attempts, 100 ms apart. True: one was good.
[[nodiscard]] bool TryFourTimes(const std::function<Attempt()>& attempt);

}  // namespace tr7
