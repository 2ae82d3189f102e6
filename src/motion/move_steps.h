#pragma once

#include <functional>

#include "link/tusin_wait.h"
#include "motion/motion_now.h"

namespace tr7 {

// What every flow that moves axes is made of.

/// True when all axes stand. That they move is told in the status bar, a failure by its box.
[[nodiscard]] bool AxesAreAtRest();

/// How a wait for the axes ended.
enum class Rest { Standing, Failed, Stopped };

/// Polls until the axes stand, and shows where they are on the way. A failure has been told, unless
/// `failure` takes it.
[[nodiscard]] Rest WaitForRest(const MotionScope& motion, TusinFailure* failure = nullptr);

/// Moves to a position, with or without its macro, and waits for the axes to stand.
[[nodiscard]] bool MoveToPosition(const MotionScope& motion, int number, bool without_macro);

/// The pause between two steps: `text` counts in 100 ms. It ends at once where `ended` says so.
void WaitBetweenSteps(const std::string& text, const std::function<bool()>& ended);

}  // namespace tr7
