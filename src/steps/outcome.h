#pragma once

namespace tr7 {

/// How a step of a transfer, or the whole of it, ended.
enum class [[nodiscard]] Outcome{
    Done,
    Failed,   ///< the user has been told
    Stopped,  ///< by the cancel button
};

}  // namespace tr7
