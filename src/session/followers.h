#pragma once

#include <functional>

namespace tr7 {

/// What follows when devices are taken from the controller or from parameters, or when it is
/// another controller. The session cannot reach the tables of higher floors; they register here.
struct FollowersRecord {
  /// Limits of the loaded table, its check, and pulses from millimetres or millimetres from pulses
  /// by the display unit; then the view is rebuilt.
  std::function<void()> PositionsFollowDevices;
  /// The same where the pulses stay whatever the unit: the millimetres follow them.
  std::function<void()> MmFollowsPulses;
  /// The session is about to end: what this tool has set in motion is stopped first.
  std::function<void()> StopBeforeTheEnd;
  /// Behind that: what a view has the controller do is taken back.
  std::function<void()> TakeBackBeforeTheEnd;
  /// A connection begins: what was under way in the former session is not gone on with.
  std::function<void()> SessionBegins;
  /// It stands: what was in doubt of the controller can be asked.
  std::function<void()> SessionStands;
  /// The line leads, or may lead, to another controller: nothing that was learned of the former
  /// holds.
  std::function<void()> AnotherController;
};

extern FollowersRecord Followers;

}  // namespace tr7
