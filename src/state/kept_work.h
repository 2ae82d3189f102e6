#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/msg_id.h"
#include "state/for_mode.h"

namespace tr7 {

/// Unsaved work in a form that outlives the tool.
struct KeptWork {
  std::string kind;  ///< `KeepKind::Word`
  std::string name;  ///< what it was to the user: its file, its number; may be empty
  ForMode mode = ForMode::Any;
  std::string when;       ///< date and time
  std::string path = {};  ///< the file that it belongs to; empty: none
  std::string mark = {};  ///< `ShownMark` of that file, by who keeps
  /// In the form of the kind's files, as text in UTF-8: what the tables hold.
  std::string file = {};
  /// What the screen shows beside, half-edited as it stands: in a form of the kind's own.
  std::string screen = {};
};

/// How unsaved work of a kind of data is kept, and comes back. One record a kind.
struct KeepKind {
  std::string Word;
  MsgId NameId;
  /// What of it is unsaved now, each by a word of its own. Asked whenever the tool wakes: it looks
  /// and changes nothing.
  std::function<std::vector<std::string>()> Unsaved;
  /// Fills in one of these, `kind` and `when` apart. It asks nothing, tells nothing and changes
  /// nothing.
  std::function<void(const std::string& which, KeptWork& work)> Keep;
  /// Shows it as unsaved work again. False: it is not back, and the user may have been asked.
  std::function<bool(const KeptWork& work)> TakeBack;
};

/// In the order of the list that the user sees.
std::vector<KeepKind>& KeepKinds();

/// Keeps now what is unsaved, where that can be; set by who keeps. Every transfer begins with it.
extern std::function<void()> KeepUnsavedWork;

/// One file of kept work, and back; nothing where the bytes are damaged. The file begins with a
/// hash of all that it holds but its time: equal work has equal ones.
inline constexpr std::size_t kWorkHashChars = 16;
std::string BytesOfWork(const KeptWork& work);
std::optional<KeptWork> WorkOfBytes(std::string_view bytes);

}  // namespace tr7
