#pragma once

namespace tr7 {

/// Marks the running step in every listing that shows a program which runs. Where the user has
/// asked for that, a step comes into sight when it begins.
void MarkRunningSteps();
/// The user has asked for it, or no longer: the steps that run now come into sight.
void FollowRunningSteps();
/// Nothing is known to run any more.
void ClearRunningSteps();

}  // namespace tr7
