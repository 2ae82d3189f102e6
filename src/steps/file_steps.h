#pragma once

#include <functional>
#include <optional>
#include <string>

#include "base/msg_id.h"

namespace tr7 {

/// What the file dialogues of one kind of data show, by message ids.
struct DataFile {
  MsgId filter_id;
  const char* extension;
  MsgId proposed_name_id;
};

/// Asks for a file to open; nothing on Cancel, an empty path where no name was given.
[[nodiscard]] std::optional<std::string> AskOpenPath(const DataFile& kind, MsgId title_id);

/// Asks for a file to save to, with a question before an old one is replaced; nothing on Cancel or
/// without a name.
[[nodiscard]] std::optional<std::string> AskSavePath(const DataFile& kind, MsgId title_id);

/// How one attempt at a file ended.
enum class [[nodiscard]] Attempt{
    Good,
    MayPass,  ///< a fault that another attempt may not meet
    Useless,  ///< another attempt ends the same way
};

/// Up to four attempts, 100 ms apart. True: one was good.
[[nodiscard]] bool TryFourTimes(const std::function<Attempt()>& attempt);

}  // namespace tr7
