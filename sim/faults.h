#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qvr7sim {

/// An error as it stands on the line: "0%%", unit, middle, code.
struct Alarm {
  char unit = '0';  ///< '0' main board, '1' to '4' the axis.
  char middle = '0';
  char code = '0';
  bool operator==(const Alarm&) const = default;
};

enum class FaultKind {
  kSilence,      ///< The request is carried out and not answered.
  kDeaf,         ///< The request is not heard: neither carried out nor answered.
  kDelay,        ///< The reply starts `time_us` later.
  kLostByte,     ///< One byte of the reply is missing.
  kChangedByte,  ///< One byte of the reply is another one.
  kExtraByte,    ///< One byte too many within the reply.
  kSplit,        ///< A pause of `time_us` within the reply.
  kDoubled,      ///< The reply line comes twice, without a gap.
  kWrongPrefix,  ///< The reply starts with three other characters.
  kWrongLength,  ///< The reply's data is one character short, or long when there is none.
  kErrorReply,   ///< The request is refused with `error`; nothing stands afterwards.
  kAlarm,        ///< `error` is raised when the request comes in, and stands until it is reset.
  kMoving,       ///< The inputs start a move of `time_us` as the request comes in, of every axis
                 ///< that the PC does not hold.
  kPowerCycle,   ///< The power fails as the request comes in, and is back after `time_us`: what
                 ///< was not stored is lost, and until then nothing is heard.
};

/// Strikes a matching request either by chance or at a count.
struct Fault {
  FaultKind kind = FaultKind::kSilence;
  double probability = 0.0;       ///< 0 to 1 for each matching request; used when at_request is 0.
  int at_request = 0;             ///< Strikes once, at the n-th matching request from 1.
  std::string prefix;             ///< Matches requests that start with it; empty matches all.
  std::int64_t time_us = 200000;  ///< Of kDelay, kSplit, kMoving and kPowerCycle.
  int at_byte = -1;               ///< Byte index the fault strikes within the reply; -1 at random.
  Alarm error{'0', '0', '1'};     ///< For kErrorReply and kAlarm.
};

/// An alarm that comes up by itself.
struct TimedAlarm {
  std::int64_t at_us = 0;
  Alarm alarm;
  bool send_line = true;  ///< The controller says so on the line unasked.
};

/// A hand that moves the slide of an axis, where its servo is off.
struct TimedPush {
  std::int64_t at_us = 0;
  int axis = 1;    ///< 1 to 4
  int pulses = 0;  ///< by so much; it stays within the stroke
};

/// Everything that goes wrong in a run.
struct Faults {
  std::vector<Fault> on_requests;
  std::vector<TimedAlarm> alarms = {};
  std::vector<TimedPush> pushes = {};
};

/// Name as it is written in options and commands ("silence", "lost-byte", ...).
std::string_view FaultName(FaultKind kind);
std::optional<FaultKind> FaultByName(std::string_view name);
/// All names, separated by blanks, for help texts.
std::string FaultNames();

}  // namespace qvr7sim
