#pragma once

#include <functional>
#include <string>

#include "base/msg_id.h"
#include "link/tusin_wait.h"

namespace tr7 {

// What every flow that moves axes is made of.

/// True when all axes stand. That they move is told in the status bar, a failure by its box.
[[nodiscard]] bool AxesAreAtRest();

/// How a motion ended.
enum class Rest { Standing, Failed, Stopped };

/// A stop has been asked for, or the computer has slept since the user's act, which counts as one
/// and is told: nothing goes out that moves an axis.
[[nodiscard]] bool MustRest();

/// Sends the start of a motion that ends by itself, unless all must rest, and polls until the axes
/// stand; where they are is shown on the way. A start or a poll whose answer is lost is followed by
/// a stop. Nobody is told of it: `failure` has the words.
[[nodiscard]] Rest StartAndWait(MsgId action, const std::string& frame,
                                const std::function<int(TusinFailure* failure)>& send,
                                TusinFailure& failure);

/// Moves to a position, with or without its macro, and waits for the axes to stand. False after the
/// user has been told, or has stopped it.
[[nodiscard]] bool MoveToPosition(int number, bool without_macro);

/// The pause between two steps: `text` counts in 100 ms. It ends at once where `ended` says so.
void WaitBetweenSteps(const std::string& text, const std::function<bool()>& ended);

}  // namespace tr7
